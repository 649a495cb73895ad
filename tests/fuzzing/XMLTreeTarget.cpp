#include "host/XMLTag.h"
#include "tests/fuzzing/FuzzTarget.h"

#include <cstddef>

namespace {

bool isSameTree(const TXMLTag& one, const TXMLTag& other) {
    if (one.GetName() != other.GetName() || one.GetValue() != other.GetValue() ||
        one.GetTagsCount() != other.GetTagsCount()) {
        return false;
    }
    for (std::size_t index = 0; index < one.GetTagsCount(); ++index) {
        if (!isSameTree(one.GetTag(index), other.GetTag(index))) {
            return false;
        }
    }
    return true;
}

} // namespace

std::string judgeXMLTree(std::string_view input) {
    const auto tree = ParseXML(input, TXMLBlanks::Keep);
    if ((tree == nullptr) != (ParseXML(input) == nullptr)) {
        return "whether it is a document depends on what becomes of blanks";
    }
    if (!tree) {
        return {};
    }
    const auto again = ParseXML(OutputXMLStr(*tree), TXMLBlanks::Keep);
    return again && isSameTree(*tree, *again) ? "" : "the tree is not read back as it was written";
}
