#include "editwin/model/Descriptor.h"

#include <cerrno>
#include <system_error>
#include <unistd.h>

namespace melvark {

namespace {

constexpr std::size_t c_BlockSize = std::size_t{64} * 1024;

/// The system's answer, asked again when a signal came between.
template <class Call>
std::size_t Counted(Call call) {
    ssize_t count = call();
    while (count < 0 && errno == EINTR) {
        count = call();
    }
    if (count < 0) {
        throw std::system_error(errno, std::generic_category());
    }
    return static_cast<std::size_t>(count);
}

} // namespace

Descriptor& Descriptor::operator=(Descriptor&& other) noexcept {
    std::swap(FNumber, other.FNumber);
    return *this;
}

Descriptor::~Descriptor() {
    Close();
}

bool Descriptor::Close() {
    // Not again after EINTR: the number is free by then and may be somebody else's.
    return !IsOpen() || close(std::exchange(FNumber, -1)) == 0 || errno == EINTR;
}

std::streamsize DescriptorOutput::xsputn(const char* text, std::streamsize count) {
    for (auto left = static_cast<std::size_t>(count); left > 0;) {
        const std::size_t written = Counted([&] { return write(FFile.Number(), text, left); });
        text += written;
        left -= written;
    }
    return count;
}

DescriptorOutput::int_type DescriptorOutput::overflow(int_type character) {
    if (!traits_type::eq_int_type(character, traits_type::eof())) {
        const char byte = traits_type::to_char_type(character);
        xsputn(&byte, 1); // which takes it or throws
    }
    return traits_type::not_eof(character);
}

DescriptorInput::DescriptorInput(const Descriptor& file) : FFile(file), FBlock(c_BlockSize) {}

DescriptorInput::int_type DescriptorInput::underflow() {
    const std::size_t count = Counted([&] { return read(FFile.Number(), FBlock.data(), FBlock.size()); });
    setg(FBlock.data(), FBlock.data(), FBlock.data() + count);
    return count == 0 ? traits_type::eof() : traits_type::to_int_type(FBlock.front());
}

} // namespace melvark
