#include "editors/ColumnTable.h"

#include "host/LangStr.h"

namespace melvark {

namespace {

AnsiString Translated(std::string_view keyStart, std::string_view keySuffix, std::string_view builtIn) {
    if (keySuffix.empty()) {
        return AnsiString(builtIn);
    }
    return LangStr(AnsiString(keyStart) + AnsiString(keySuffix), {}, builtIn);
}

} // namespace

AnsiString ColumnCaption(std::string_view keySuffix, std::string_view builtIn) {
    return Translated(R"(KORDAN30\MELVARKEDITOR\COLUMN)", keySuffix, builtIn);
}

AnsiString ColumnHint(std::string_view keySuffix, std::string_view builtIn) {
    return Translated(R"(KORDAN30\MELVARKEDITOR\COLUMNHINT)", keySuffix, builtIn);
}

} // namespace melvark
