#include "refhost/Refusals.h"

#include "host/Exceptions.h"
#include "refhost/Languages.h"

namespace refhost {

namespace {

constexpr std::string_view c_opening = "„";
constexpr std::string_view c_closing = "“";

bool isDigit(char c) {
    return c >= '1' && c <= '9';
}

} // namespace

RefusalSentence takeThingsOut(std::string_view sentence) {
    RefusalSentence result;
    while (true) {
        const std::size_t opening = sentence.find(c_opening);
        const std::size_t start = opening + c_opening.size();
        const std::size_t end = opening == sentence.npos ? sentence.npos : sentence.find(c_closing, start);
        if (end == sentence.npos) {
            break;
        }
        result.things.emplace_back(sentence.substr(start, end - start));
        result.pattern.append(sentence.substr(0, start)).append("%" + std::to_string(result.things.size()));
        sentence.remove_prefix(end);
    }
    result.pattern.append(sentence);
    return result;
}

std::optional<std::string> translateRefusal(const EDatabaseError& refusal, const Languages& languages) {
    if (refusal.Code().empty()) {
        return std::nullopt;
    }
    const RefusalSentence sentence = takeThingsOut(refusal.Message());
    const auto translation = languages.translation("MELVARKHOST\\REFUSAL\\" + refusal.Code(), sentence.pattern);
    if (!translation) {
        return std::nullopt;
    }
    // In one pass, so that a thing which itself has a "%2" in its name stays as it is.
    std::string filled;
    for (std::size_t at = 0; at < translation->size(); ++at) {
        const bool isPlace =
            (*translation)[at] == '%' && at + 1 < translation->size() && isDigit((*translation)[at + 1]);
        if (!isPlace) {
            filled += (*translation)[at];
            continue;
        }
        const auto thing = static_cast<std::size_t>((*translation)[++at] - '1');
        if (thing >= sentence.things.size()) {
            return std::nullopt;
        }
        filled += sentence.things[thing];
    }
    return filled;
}

} // namespace refhost
