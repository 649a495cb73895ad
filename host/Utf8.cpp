#include "host/Utf8.h"

#include <utf8.h>

namespace melvark {

TUtf8Step FirstStep(std::string_view text) {
    const char* position = text.data();
    try {
        const std::uint32_t code = utf8::next(position, text.data() + text.size());
        return {char32_t{code}, static_cast<std::size_t>(position - text.data()), true};
    } catch (const utf8::exception&) {
        return {};
    }
}

bool IsUtf8(std::string_view text) {
    return utf8::is_valid(text.begin(), text.end());
}

std::size_t CharacterCount(std::string_view text) {
    std::size_t count = 0;
    while (!text.empty()) {
        const TUtf8Step step = FirstStep(text);
        count += step.IsValid ? 1 : 0;
        text.remove_prefix(step.Length);
    }
    return count;
}

std::string_view FirstCharacters(std::string_view text, std::size_t count) {
    std::size_t end = 0;
    for (std::size_t seen = 0; end < text.size();) {
        const TUtf8Step step = FirstStep(text.substr(end));
        if (step.IsValid && ++seen > count) {
            break;
        }
        end += step.Length;
    }
    return text.substr(0, end);
}

} // namespace melvark
