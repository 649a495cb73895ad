#include "refhost/HiddenValues.h"

#include <algorithm>

namespace refhost {

namespace {

constexpr char c_hidden = '?';

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

/// What a name consists of; beyond ASCII all bytes count as letters.
bool isInName(char c) {
    return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '$' ||
           static_cast<unsigned char>(c) >= 0x80;
}

/// How many characters from the front `fits` takes.
template <typename Fits>
std::size_t countOf(std::string_view text, Fits fits) {
    return static_cast<std::size_t>(std::ranges::find_if_not(text, fits) - text.begin());
}

/// The length of what stands between two of the quotes in front; a doubled one in it makes two texts side by side.
std::size_t quotedLength(std::string_view text) {
    const std::size_t end = text.find(text.front(), 1);
    return end == text.npos ? text.size() : end + 1;
}

} // namespace

std::string hideValues(std::string_view sql) {
    std::string shown;
    while (!sql.empty()) {
        const char first = sql.front();
        std::size_t length = 1;
        if (first == '\'') {
            length = quotedLength(sql);
            shown += c_hidden;
        } else if (isDigit(first)) {
            length = countOf(sql, [](char c) { return isInName(c) || c == '.'; });
            shown += c_hidden;
        } else {
            length = first == '"' ? quotedLength(sql) : std::max<std::size_t>(countOf(sql, isInName), 1);
            shown += sql.substr(0, length);
        }
        sql.remove_prefix(length);
    }
    return shown;
}

} // namespace refhost
