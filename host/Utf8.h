#pragma once

/// \file
/// Stepping through UTF-8.
///
/// No text is too damaged to be counted or cut: bytes that are no UTF-8 count as nothing and stay with the character
/// before them.

#include <cstddef>
#include <string_view>

namespace melvark {

/// What stands at the front of a text.
struct TUtf8Step {
    char32_t Code = 0;      ///< Of the character; 0 when it is none.
    std::size_t Length = 1; ///< In bytes.
    bool IsValid = false;   ///< False for one byte that begins no character.
};

/// Looks at the front of the text, which is not empty. Overlong forms, surrogates, cut sequences and codes above the
/// last plane are no characters.
TUtf8Step FirstStep(std::string_view text);

/// Whether the text is UTF-8 throughout.
bool IsUtf8(std::string_view text);

/// How many characters the text has.
std::size_t CharacterCount(std::string_view text);
/// The first `count` characters of the text; all of it when there are no more.
std::string_view FirstCharacters(std::string_view text, std::size_t count);

} // namespace melvark
