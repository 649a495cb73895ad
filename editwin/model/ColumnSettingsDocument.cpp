#include "editwin/model/ColumnSettingsDocument.h"

#include "editwin/model/ColumnList.h"
#include "host/ValueText.h"
#include "host/XMLTag.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace melvark {

namespace {

template <typename T>
struct Code {
    T Value;
    const char* Text;
};

// The first code of a table is the one written for a value that the table does not list.
constexpr Code<TColumnAlign> c_AlignCodes[] = {{caLeft, "L"}, {caCenter, "C"}, {caRight, "R"}};
constexpr Code<TEditable> c_EditableCodes[] = {{eNone, "NONE"}, {eAuto, "AUTO"}, {eManual, "MAN"}};

constexpr int c_WidthOfBadText = 100;

template <typename T, std::size_t N>
AnsiString CodeOf(T value, const Code<T> (&codes)[N]) {
    const auto* found = std::ranges::find(codes, value, &Code<T>::Value);
    return found == std::end(codes) ? codes[0].Text : found->Text;
}

/// The value of the code; `builtIn` for a text that is no code.
template <typename T, std::size_t N>
T ValueOf(const AnsiString& text, const Code<T> (&codes)[N], T builtIn) {
    const auto* found = std::ranges::find_if(codes, [&](const Code<T>& code) { return text == code.Text; });
    return found == std::end(codes) ? builtIn : found->Value;
}

AnsiString FlagText(bool flag) {
    return flag ? "1" : "0";
}

bool IsFlagSet(const AnsiString& text) {
    return text == "1";
}

/// One property of a column: its element, the text that is written, and what a text that is read makes of the column.
struct ColumnElement {
    const char* Name;
    AnsiString (*Text)(const RColumn& column);
    void (*Take)(const AnsiString& text, RColumn& column);
};

/// In the order in which they are written, behind the column's name.
constexpr ColumnElement c_ColumnElements[] = {
    {"caption", [](const RColumn& column) { return column.Caption; },
     [](const AnsiString& text, RColumn& column) { column.Caption = text; }},
    {"hint", [](const RColumn& column) { return column.Hint; },
     [](const AnsiString& text, RColumn& column) { column.Hint = text; }},
    {"align", [](const RColumn& column) { return CodeOf(column.Align, c_AlignCodes); },
     [](const AnsiString& text, RColumn& column) { column.Align = ValueOf(text, c_AlignCodes, column.Align); }},
    {"visible", [](const RColumn& column) { return FlagText(column.Visible); },
     [](const AnsiString& text, RColumn& column) { column.Visible = IsFlagSet(text); }},
    {"editable", [](const RColumn& column) { return CodeOf(column.Editable, c_EditableCodes); },
     [](const AnsiString& text, RColumn& column) {
         column.Editable = ValueOf(text, c_EditableCodes, column.Editable);
     }},
    {"width", [](const RColumn& column) { return AnsiString(std::to_string(column.Width)); },
     [](const AnsiString& text, RColumn& column) { column.Width = TextToInt(text).value_or(c_WidthOfBadText); }},
};

void WriteColumn(const RColumn& column, TXMLTag& parent) {
    TXMLTag& element = parent.CreateTag("column");
    element.CreateTag("name").SetValue(column.Name);
    for (const ColumnElement& property : c_ColumnElements) {
        element.CreateTag(property.Name).SetValue(property.Text(column));
    }
}

/// Changes the built-in `column` to what the children of its element say, the first of each name. One pass: a stored
/// document may have any number of children.
void ReadColumn(const TXMLTag& element, RColumn& column) {
    std::array<bool, std::size(c_ColumnElements)> isRead{};
    for (std::size_t index = 0; index < element.GetTagsCount(); ++index) {
        const TXMLTag& child = element.GetTag(index);
        const auto* const property =
            std::ranges::find(c_ColumnElements, std::string_view(child.GetName()),
                              [](const ColumnElement& each) { return std::string_view(each.Name); });
        if (property != std::end(c_ColumnElements) &&
            !std::exchange(isRead[static_cast<std::size_t>(property - c_ColumnElements)], true)) {
            property->Take(child.GetValue(), column);
        }
    }
}

/// Puts columns one after the other into a list of fixed length.
class ColumnPlacing {
public:
    ColumnPlacing(std::span<const RColumn> previous, std::span<const RColumn> defaults)
        : FPrevious(previous), FDefaults(defaults) {
        FPlaced.reserve(defaults.size());
    }

    void PlaceNamed(const TXMLTag& columns) {
        for (std::size_t index = 0; index < columns.GetTagsCount() && HasRoom(); ++index) {
            const TXMLTag& element = columns.GetTag(index);
            const TXMLTag* name = element.GetName() == "column" ? element.GetTagByName("name") : nullptr;
            const RColumn* builtIn = name == nullptr ? nullptr : FindByName(FDefaults, name->GetValue());
            if (builtIn == nullptr || IsRepeat(builtIn->Name)) {
                continue;
            }
            RColumn column = *builtIn;
            ReadColumn(element, column);
            Place(std::move(column));
        }
    }

    void PlaceRest() {
        for (const RColumn& builtIn : FDefaults) {
            if (!HasRoom()) {
                return;
            }
            if (FindByName(FPlaced, builtIn.Name) == nullptr) {
                Place(builtIn);
            }
        }
    }

    std::vector<RColumn> Result() && { return std::move(FPlaced); }

private:
    bool HasRoom() const { return FPlaced.size() < FDefaults.size(); }

    /// The first placed column is left out of this test: its repeat is placed again.
    bool IsRepeat(std::string_view name) const {
        return !FPlaced.empty() && FindByName(std::span(FPlaced).subspan(1), name) != nullptr;
    }

    void Place(RColumn column) {
        if (const RColumn* bound = FindByName(FPrevious, column.Name)) {
            column.DataColumn = bound->DataColumn;
        }
        FPlaced.push_back(std::move(column));
    }

    std::span<const RColumn> FPrevious;
    std::span<const RColumn> FDefaults;
    std::vector<RColumn> FPlaced;
};

} // namespace

AnsiString WriteColumnSettings(std::span<const RColumn> columns, std::optional<bool> recalculation) {
    TXMLTag root("settings");
    if (recalculation) {
        root.CreateTag("prepocet").SetValue(FlagText(*recalculation));
    }
    TXMLTag& list = root.CreateTag("columns");
    for (const RColumn& column : columns) {
        WriteColumn(column, list);
    }
    return OutputXMLStr(root);
}

AppliedColumnSettings ReadColumnSettings(std::string_view document, std::span<const RColumn> previous,
                                         std::span<const RColumn> defaults) {
    AppliedColumnSettings applied;
    ColumnPlacing placing(previous, defaults);
    const std::unique_ptr<TXMLTag> root = ParseXML(document);
    if (root && root->GetName() == "settings") {
        for (std::size_t index = 0; index < root->GetTagsCount(); ++index) {
            const TXMLTag& element = root->GetTag(index);
            if (element.GetName() == "prepocet") {
                applied.Recalculation = IsFlagSet(element.GetValue());
            } else if (element.GetName() == "columns") {
                placing.PlaceNamed(element);
            }
        }
    }
    placing.PlaceRest();
    applied.Columns = std::move(placing).Result();
    return applied;
}

} // namespace melvark
