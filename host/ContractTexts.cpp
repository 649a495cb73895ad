#include "host/ContractTexts.h"

#include "host/HostServices.h"

namespace melvark {

namespace {

AnsiString InTheUsersLanguage(const ContractText& text) {
    return HasCurrentHost() ? CurrentHost().Translation(text.Key, text.BuiltIn).value_or(AnsiString(text.BuiltIn))
                            : AnsiString(text.BuiltIn);
}

} // namespace

AnsiString Sentence(const ContractText& text, std::initializer_list<std::string_view> things) {
    constexpr std::string_view place = "%s";
    AnsiString sentence = InTheUsersLanguage(text);
    std::size_t position = 0;
    for (const std::string_view thing : things) {
        position = sentence.find(place, position);
        if (position == AnsiString::npos) {
            break;
        }
        sentence.replace(position, place.size(), thing);
        position += thing.size();
    }
    return sentence;
}

} // namespace melvark
