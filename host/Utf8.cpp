#include "host/Utf8.h"

#include <cstdint>
#include <cstring>
#include <utf8.h>

namespace melvark {

namespace {

constexpr std::size_t c_Word = sizeof(std::uint64_t);

bool IsAsciiWord(const char* text) {
    std::uint64_t word = 0;
    std::memcpy(&word, text, c_Word);
    return (word & 0x8080808080808080) == 0;
}

bool IsAscii(char byte) {
    return static_cast<unsigned char>(byte) < 0x80;
}

/// Whether these bytes are a letter of two.
bool IsLetter(char first, char second) {
    const auto lead = static_cast<unsigned char>(first);
    return lead >= 0xC2 && lead <= 0xDF && (static_cast<unsigned char>(second) & 0xC0) == 0x80;
}

} // namespace

TUtf8Step FirstStep(std::string_view text) {
    const char* position = text.data();
    try {
        const std::uint32_t code = utf8::next(position, text.data() + text.size());
        return {char32_t{code}, static_cast<std::size_t>(position - text.data()), true};
    } catch (const utf8::exception&) {
        return {};
    }
}

// Nearly all of a Czech text is ASCII, which is taken eight bytes at once, and letters of two bytes.
bool IsUtf8(std::string_view text) {
    const char* at = text.data();
    const char* const end = at + text.size();
    while (at != end) {
        const auto left = static_cast<std::size_t>(end - at);
        if (left >= c_Word && IsAsciiWord(at)) {
            at += c_Word;
        } else if (IsAscii(*at)) {
            ++at;
        } else if (left >= 2 && IsLetter(at[0], at[1])) {
            at += 2;
        } else if (const TUtf8Step step = FirstStep({at, left}); step.IsValid) {
            at += step.Length;
        } else {
            return false;
        }
    }
    return true;
}

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    while (!text.empty()) {
        const TUtf8Step step = FirstStep(text);
        count += step.IsValid ? 1 : 0;
        text.remove_prefix(step.Length);
    }
    return count;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    for (std::size_t seen = 0; end < text.size();) {
        const TUtf8Step step = FirstStep(text.substr(end));
        if (step.IsValid && ++seen > count) {
            break;
        }
        end += step.Length;
    }
    return text.substr(0, end);
}

} // namespace melvark
