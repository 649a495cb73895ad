#include "editwin/model/WindowPlacementDocument.h"

#include "host/ValueText.h"
#include "host/XMLTag.h"

#include <memory>
#include <string>

namespace melvark {

namespace {

constexpr const char* c_Root = "window";
constexpr const char* c_Maximized = "maximized";

/// The numbers of the document, in its order.
struct NumberElement {
    const char* Name;
    int WindowPlacement::*Member;
};

constexpr NumberElement c_Numbers[] = {
    {"left", &WindowPlacement::Left},
    {"top", &WindowPlacement::Top},
    {"width", &WindowPlacement::Width},
    {"height", &WindowPlacement::Height},
};

} // namespace

AnsiString WriteWindowPlacement(const WindowPlacement& placement) {
    TXMLTag root(c_Root);
    for (const auto& [name, member] : c_Numbers) {
        root.CreateTag(name).SetValue(std::to_string(placement.*member));
    }
    root.CreateTag(c_Maximized).SetValue(placement.Maximized.value_or(false) ? "1" : "0");
    return OutputXMLStr(root);
}

std::optional<WindowPlacement> ReadWindowPlacement(std::string_view document, const WindowPlacement& current) {
    const std::unique_ptr<TXMLTag> root = ParseXML(document);
    if (!root || root->GetName() != c_Root) {
        return std::nullopt;
    }
    WindowPlacement placement = current;
    placement.Maximized.reset();
    for (const auto& [name, member] : c_Numbers) {
        if (const TXMLTag* element = root->GetTagByName(name)) {
            placement.*member = TextToInt(element->GetValue()).value_or(current.*member);
        }
    }
    if (const TXMLTag* maximized = root->GetTagByName(c_Maximized)) {
        placement.Maximized = maximized->GetValue() == "1";
    }
    return placement;
}

} // namespace melvark
