#include "host/LangStr.h"

#include "host/HostServices.h"

#include <cstddef>
#include <optional>

AnsiString LangStr(std::string_view key, std::initializer_list<TFormatArg> arguments, std::string_view fallback) {
    const THostServices& host = CurrentHost();
    const std::optional<AnsiString> translation = host.Translation(key, fallback);
    return Format(translation ? std::string_view(*translation) : fallback, arguments, host.FormatSettings());
}

AnsiString GetWord(std::string_view text, int index, char separator) {
    if (index < 0) {
        return {};
    }
    for (; index > 0; --index) {
        const std::size_t end = text.find(separator);
        if (end == std::string_view::npos) {
            return {};
        }
        text.remove_prefix(end + 1);
    }
    return AnsiString(text.substr(0, text.find(separator)));
}
