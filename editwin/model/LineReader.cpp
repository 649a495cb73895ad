#include "editwin/model/LineReader.h"

namespace melvark {

namespace {

constexpr std::size_t c_BlockSize = std::size_t{64} * 1024;

} // namespace

LineReader::LineReader(std::streambuf& source, std::size_t longest)
    : FSource(source), FLongest(longest), FBlock(c_BlockSize) {}

std::optional<std::string_view> LineReader::Next() {
    FCarried.clear();
    while (!FRest.empty() || Refill()) {
        const std::size_t end = FRest.find('\n');
        const std::string_view piece = FRest.substr(0, end);
        if (FCarried.size() + piece.size() > FLongest) {
            return std::nullopt;
        }
        const bool isWhole = end != std::string_view::npos;
        FRest.remove_prefix(isWhole ? end + 1 : piece.size());
        if (isWhole && FCarried.empty()) {
            return piece;
        }
        FCarried += piece;
        if (isWhole) {
            return FCarried;
        }
    }
    return std::nullopt;
}

bool LineReader::IsAtEnd() {
    return FRest.empty() && !Refill();
}

bool LineReader::Refill() {
    const std::streamsize count = FSource.sgetn(FBlock.data(), static_cast<std::streamsize>(FBlock.size()));
    FRest = std::string_view(FBlock.data(), static_cast<std::size_t>(count));
    return count > 0;
}

} // namespace melvark
