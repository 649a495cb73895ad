#include "tests/fuzzing/FuzzTarget.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr FuzzTarget c_Targets[] = {
    {"autosave", judgeAutosave},
    {"xml", judgeXMLTree},
    {"settings", judgeColumnSettings},
    {"placement", judgeWindowPlacement},
};

} // namespace

std::span<const FuzzTarget> fuzzTargets() {
    return c_Targets;
}

const FuzzTarget* findFuzzTarget(std::string_view name) {
    const auto* const found =
        std::ranges::find(c_Targets, name, [](const FuzzTarget& target) { return std::string_view(target.Name); });
    return found == std::end(c_Targets) ? nullptr : found;
}
