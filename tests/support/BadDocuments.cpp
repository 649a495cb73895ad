#include "tests/support/BadDocuments.h"

#include <string>
#include <string_view>

namespace {

constexpr const char* c_Declaration = R"(<?xml version="1.0" encoding="UTF-8"?>)";

AnsiString repeated(std::string_view text, std::size_t times) {
    AnsiString all;
    all.reserve(text.size() * times);
    for (; times > 0; --times) {
        all += text;
    }
    return all;
}

AnsiString replaced(AnsiString text, std::string_view from, std::string_view to) {
    const std::size_t place = text.find(from);
    return place == AnsiString::npos ? text : text.replace(place, from.size(), to);
}

AnsiString wide(const AnsiString& text) {
    AnsiString units = "\xFF\xFE";
    for (const char each : text) {
        units += each;
        units += '\0';
    }
    return units;
}

/// Ten levels of entities, each ten times the one before: 10 GB from less than a kilobyte.
AnsiString bomb(const AnsiString& root) {
    AnsiString entities = R"(<!ENTITY e0 "aaaaaaaaaa">)";
    for (int level = 1; level < 10; ++level) {
        entities +=
            "<!ENTITY e" + std::to_string(level) + " \"" + repeated("&e" + std::to_string(level - 1) + ";", 10) + "\">";
    }
    return "<!DOCTYPE " + root + " [" + entities + "]><" + root + ">&e9;</" + root + ">";
}

} // namespace

std::vector<BadDocument> badDocuments(const AnsiString& root, const AnsiString& whole) {
    constexpr std::size_t c_Levels = 100000;
    constexpr std::size_t c_LongText = std::size_t{50} * 1024 * 1024;
    const AnsiString inner = whole.substr(0, whole.rfind("</"));
    return {
        {"Empty", ""},
        {"Blanks", " \n "},
        {"OtherRoot", "<jine><columns><column><name>CENA</name></column></columns><left>1</left></jine>"},
        {"CutOff", inner},
        {"Wide", wide(replaced(c_Declaration + whole, "UTF-8", "UTF-16"))},
        {"LatinBytes", replaced(replaced(c_Declaration + whole, "UTF-8", "ISO-8859-2"), "č", "\xE8")},
        {"LatinDeclared", replaced(c_Declaration + whole, "UTF-8", "ISO-8859-2"), true},
        {"UnknownEncoding", replaced(c_Declaration + whole, "UTF-8", "klingon"), true},
        {"NoDeclaration", whole, true},
        {"ByteOrderMark", "\xEF\xBB\xBF" + whole, true},
        {"Levels", inner + repeated("<a>", c_Levels) + repeated("</a>", c_Levels) + "</" + root + ">"},
        {"Long", inner + "<a>" + AnsiString(c_LongText, 'x') + "</a></" + root + ">"},
        {"Bomb", bomb(root)},
    };
}
