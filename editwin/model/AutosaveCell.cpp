#include "editwin/model/AutosaveCell.h"

#include "host/Utf8.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace melvark {

namespace {

/// What a letter behind the marker stands for.
struct Escape {
    char Letter;
    char Character;
};
constexpr std::array c_Escapes{Escape{'n', '\n'}, Escape{'r', '\r'}, Escape{'0', '\0'},
                               Escape{c_AutosaveMarker, c_AutosaveMarker}};
constexpr char c_ByteLetter = 'x';
constexpr std::size_t c_ByteDigits = 2;

/// Counted by pieces of a known length, which the compiler takes as many bytes at once as the processor can.
std::size_t LineEndsIn(std::string_view text) {
    constexpr std::size_t c_Piece = 128;
    std::size_t count = 0;
    while (text.size() >= c_Piece) {
        unsigned char piece = 0;
        for (std::size_t i = 0; i < c_Piece; ++i) {
            piece = static_cast<unsigned char>(piece + (text[i] == '\n' ? 1 : 0));
        }
        count += piece;
        text.remove_prefix(c_Piece);
    }
    return count + static_cast<std::size_t>(std::ranges::count(text, '\n'));
}

/// Bytes that would not come back from within a line.
bool HoldsOtherBytes(std::string_view text) {
    return text.find('\r') != text.npos || text.find('\0') != text.npos || !IsUtf8(text);
}

/// Letters, digits and signs of ASCII alone, as nearly all cells are. Without a branch for each byte.
bool IsPlain(std::string_view text) {
    bool isPlain = true;
    for (const char byte : text) {
        isPlain &= static_cast<unsigned char>(byte - ' ') < 0x80 - ' ';
    }
    return isPlain;
}

bool StandsAsItIs(std::string_view cell) {
    return !cell.starts_with(c_AutosaveMarker) &&
           (IsPlain(cell) || (cell.find('\n') == cell.npos && !HoldsOtherBytes(cell)));
}

void AppendByte(AnsiString& text, char byte) {
    constexpr std::string_view c_Digits = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    text += {c_AutosaveMarker, c_ByteLetter, c_Digits[value / 16], c_Digits[value % 16]};
}

void AppendEscaped(AnsiString& text, std::string_view cell) {
    while (!cell.empty()) {
        const TUtf8Step step = FirstStep(cell);
        const auto* const escape = std::ranges::find(c_Escapes, cell.front(), &Escape::Character);
        if (escape != c_Escapes.end()) {
            text += {c_AutosaveMarker, escape->Letter};
        } else if (step.IsValid) {
            text += cell.substr(0, step.Length);
        } else {
            AppendByte(text, cell.front());
        }
        cell.remove_prefix(step.Length);
    }
}

/// Takes what stands behind a marker off the front of the line.
std::optional<char> TakeEscape(std::string_view& line) {
    if (line.empty()) {
        return std::nullopt;
    }
    const char letter = line.front();
    line.remove_prefix(1);
    if (const auto* const escape = std::ranges::find(c_Escapes, letter, &Escape::Letter); escape != c_Escapes.end()) {
        return escape->Character;
    }
    unsigned value = 0;
    const std::string_view digits = line.substr(0, c_ByteDigits);
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (letter != c_ByteLetter || error != std::errc() || end != digits.data() + c_ByteDigits) {
        return std::nullopt;
    }
    line.remove_prefix(c_ByteDigits);
    return static_cast<char>(value);
}

std::optional<AnsiString> Unescaped(std::string_view line) {
    AnsiString cell;
    while (!line.empty()) {
        const char first = line.front();
        line.remove_prefix(1);
        if (first != c_AutosaveMarker) {
            cell += first;
        } else if (const auto character = TakeEscape(line)) {
            cell += *character;
        } else {
            return std::nullopt;
        }
    }
    return cell;
}

} // namespace

bool AreAutosaveLines(std::string_view text, std::size_t count) {
    return LineEndsIn(text) == count && !HoldsOtherBytes(text);
}

void AppendAutosaveCell(AnsiString& text, std::string_view cell) {
    if (StandsAsItIs(cell)) {
        text += cell;
        return;
    }
    text += c_AutosaveMarker;
    AppendEscaped(text, cell);
}

std::optional<AnsiString> AutosaveCell(std::string_view line) {
    if (StandsAsItIs(line)) {
        return AnsiString(line);
    }
    std::optional<AnsiString> cell = line.starts_with(c_AutosaveMarker) ? Unescaped(line.substr(1)) : std::nullopt;
    if (cell) {
        AnsiString again;
        AppendAutosaveCell(again, *cell);
        if (again != line) {
            return std::nullopt; // another spelling is not ours
        }
    }
    return cell;
}

} // namespace melvark
