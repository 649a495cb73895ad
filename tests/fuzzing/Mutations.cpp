#include "tests/fuzzing/Mutations.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace {

/// What readers of documents and numbers stumble over.
constexpr std::string_view c_Words[] = {"<",
                                        ">",
                                        "</",
                                        "/>",
                                        "&amp;",
                                        "&#0;",
                                        "&#xD;",
                                        "]]>",
                                        "<!--",
                                        "<![CDATA[",
                                        "<?xml ?>",
                                        "<!DOCTYPE a>",
                                        "&e;",
                                        "-1",
                                        "2147483647",
                                        "-2147483648",
                                        "99999999999",
                                        "12px",
                                        "\xC3",
                                        "ž",
                                        "\xEF\xBF\xBF",
                                        "\xEF\xBB\xBF",
                                        "\xFF\xFE",
                                        "\n",
                                        " ",
                                        "\"",
                                        "=",
                                        "%",
                                        ";",
                                        "0x10"};

constexpr std::size_t c_LongestPiece = 64;

} // namespace

std::size_t Mutations::below(std::size_t bound) {
    return bound == 0 ? 0 : static_cast<std::size_t>(FRandom() % bound);
}

std::string Mutations::next(std::span<const std::string> texts) {
    std::string text = texts[below(texts.size())];
    for (std::size_t left = 1 + below(6); left > 0; --left) {
        damage(text, texts);
    }
    return text;
}

void Mutations::damage(std::string& text, std::span<const std::string> texts) {
    const std::size_t place = below(text.size() + 1);
    const std::size_t length = below(std::min(c_LongestPiece, text.size() - place) + 1);
    switch (below(7)) {
    case 0:
        text.erase(place, length);
        break;
    case 1:
        text.insert(place, text.substr(place, length));
        break;
    case 2: {
        const std::string piece = text.substr(place, length);
        text.erase(place, length);
        text.insert(below(text.size() + 1), piece);
        break;
    }
    case 3: {
        const std::string& other = texts[below(texts.size())];
        text.replace(place, length, other, below(other.size() + 1), 1 + below(c_LongestPiece));
        break;
    }
    case 4:
        text.insert(place, c_Words[below(std::size(c_Words))]);
        break;
    case 5:
        if (place < text.size()) {
            text[place] = static_cast<char>(below(256));
        }
        break;
    default:
        // Rarely: most of what follows would be a text cut off.
        if (below(4) == 0) {
            text.resize(place);
        }
    }
}
