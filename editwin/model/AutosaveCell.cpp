#include "editwin/model/AutosaveCell.h"

#include "host/Utf8.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace melvark {

namespace {

constexpr char c_Marker = '\\';

/// What a letter behind the marker stands for.
struct Escape {
    char Letter;
    char Character;
};
constexpr std::array c_Escapes{Escape{'n', '\n'}, Escape{'r', '\r'}, Escape{'0', '\0'}, Escape{c_Marker, c_Marker}};
constexpr char c_ByteLetter = 'x';
constexpr std::size_t c_ByteDigits = 2;

enum ByteKind : unsigned char { c_Plain = 0, c_Break = 1, c_BeyondAscii = 2 };

constexpr std::array<unsigned char, 256> c_Kinds = [] {
    std::array<unsigned char, 256> kinds{};
    std::fill(kinds.begin() + 128, kinds.end(), c_BeyondAscii);
    for (const char byte : {'\n', '\r', '\0'}) {
        kinds[static_cast<unsigned char>(byte)] = c_Break;
    }
    return kinds;
}();

/// The kinds of all bytes together, without a branch for each: most cells are a few plain letters or digits.
unsigned KindsIn(std::string_view text) {
    unsigned kinds = c_Plain;
    for (const char byte : text) {
        kinds |= c_Kinds[static_cast<unsigned char>(byte)];
    }
    return kinds;
}

bool StandsAsItIs(std::string_view cell) {
    const unsigned kinds = KindsIn(cell);
    return (kinds & c_Break) == 0 && !cell.starts_with(c_Marker) && ((kinds & c_BeyondAscii) == 0 || IsUtf8(cell));
}

void AppendByte(AnsiString& text, char byte) {
    constexpr std::string_view c_Digits = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    text += {c_Marker, c_ByteLetter, c_Digits[value / 16], c_Digits[value % 16]};
}

void AppendEscaped(AnsiString& text, std::string_view cell) {
    while (!cell.empty()) {
        const TUtf8Step step = FirstStep(cell);
        const auto* const escape = std::ranges::find(c_Escapes, cell.front(), &Escape::Character);
        if (escape != c_Escapes.end()) {
            text += {c_Marker, escape->Letter};
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
        if (first != c_Marker) {
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

void AppendAutosaveCell(AnsiString& text, std::string_view cell) {
    if (StandsAsItIs(cell)) {
        text += cell;
        return;
    }
    text += c_Marker;
    AppendEscaped(text, cell);
}

std::optional<AnsiString> AutosaveCell(std::string_view line) {
    if (StandsAsItIs(line)) {
        return AnsiString(line);
    }
    std::optional<AnsiString> cell = line.starts_with(c_Marker) ? Unescaped(line.substr(1)) : std::nullopt;
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
