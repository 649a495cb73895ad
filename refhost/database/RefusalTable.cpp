#include "refhost/database/RefusalTable.h"

#include <algorithm>
#include <stdexcept>

namespace refhost {

namespace {

constexpr std::size_t c_CodeLength = 5;
constexpr std::size_t c_PlaceLength = 3; // "{1}"

bool isPlace(std::string_view text) {
    return text.size() >= c_PlaceLength && text[0] == '{' && text[1] >= '1' && text[1] <= '9' && text[2] == '}';
}

} // namespace

EDatabaseError refusal(std::string_view key, const std::vector<std::string>& named, std::string details,
                       TDatabaseCause cause) {
    const auto rows = refusalRows();
    const auto row = std::ranges::find(rows, key, &RefusalRow::Key);
    if (row == rows.end()) {
        throw std::logic_error("there is no refusal " + std::string(key));
    }
    // In one pass, so that a thing which has a "{2}" in its name stays as it is.
    std::string sentence;
    for (std::string_view left = row->Sentence; !left.empty();) {
        if (!isPlace(left)) {
            sentence += left.front();
            left.remove_prefix(1);
            continue;
        }
        sentence += named.at(static_cast<std::size_t>(left[1] - '1'));
        left.remove_prefix(c_PlaceLength);
    }
    return EDatabaseError(std::move(sentence), std::string(key.substr(0, c_CodeLength)), std::move(details), cause);
}

} // namespace refhost
