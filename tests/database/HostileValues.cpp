#include "tests/database/HostileValues.h"

namespace refhost {

std::span<const HostileValue> hostileValues() {
    static const HostileValue all[] = {
        {"nothing", {}},
        {"an empty text", AnsiString()},
        {"10,000 letters", AnsiString(10000, 'x')},
        {"10,000 digits", AnsiString(10000, '7')},
        {"a closing quote and a statement", AnsiString("'; delete from DODAK; --")},
        {"quotes", AnsiString("\"Mouka\" 'hladká' `x` $$y$$")},
        {"a semicolon", AnsiString(";")},
        {"percent signs", AnsiString("%_%s%d%")},
        {"the place of a sentence", AnsiString("{1} %1$s {9}")},
        {"a backslash", AnsiString("\\")},
        {"a line break", AnsiString("Mouka\nhladká")},
        {"other scripts", AnsiString("粉 мука طحين 😀")},
        {"an exponent", AnsiString("1e3")},
        {"no number", AnsiString("nan")},
        {"a comma", AnsiString("1,5")},
        {"blanks around", AnsiString(" 7 ")},
        {"digits of another width", AnsiString("１２")},
        {"a date of another country", AnsiString("2026-02-30")},
        {"no identifier", AnsiString("0")},
        {"a negative identifier", AnsiString("-1")},
        {"the largest integer", std::int64_t{2147483647}},
        {"an integer that is too large", std::int64_t{4294967297}},
        {"a negative integer", std::int64_t{-5}},
        {"a fraction", 0.1},
        {"a huge number", 1e300},
        {"a flag", true},
    };
    return all;
}

} // namespace refhost
