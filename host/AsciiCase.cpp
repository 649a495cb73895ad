#include "host/AsciiCase.h"

#include <algorithm>

namespace melvark {

namespace {

constexpr char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr char Upper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

} // namespace

AnsiString LowerAscii(std::string_view text) {
    AnsiString lower(text);
    std::ranges::transform(lower, lower.begin(), Lower);
    return lower;
}

AnsiString UpperAscii(std::string_view text) {
    AnsiString upper(text);
    std::ranges::transform(upper, upper.begin(), Upper);
    return upper;
}

bool SameButForAsciiCase(std::string_view left, std::string_view right) {
    return std::ranges::equal(left, right, {}, Lower, Lower);
}

} // namespace melvark
