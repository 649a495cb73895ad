#include "editwin/model/ColumnSettingsDocument.h"

#include "editwin/model/ColumnList.h"
#include "host/ValueText.h"
#include "host/XMLTag.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <string>
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

bool IsFlagSet(const TXMLTag& element) {
    return element.GetValue() == "1";
}

void WriteColumn(const RColumn& column, TXMLTag& parent) {
    TXMLTag& element = parent.CreateTag("column");
    element.CreateTag("name").SetValue(column.Name);
    element.CreateTag("caption").SetValue(column.Caption);
    element.CreateTag("hint").SetValue(column.Hint);
    element.CreateTag("align").SetValue(CodeOf(column.Align, c_AlignCodes));
    element.CreateTag("visible").SetValue(FlagText(column.Visible));
    element.CreateTag("editable").SetValue(CodeOf(column.Editable, c_EditableCodes));
    element.CreateTag("width").SetValue(std::to_string(column.Width));
}

/// Changes the built-in `column` to what the children of its element say.
void ReadColumn(const TXMLTag& element, RColumn& column) {
    if (const TXMLTag* caption = element.GetTagByName("caption")) {
        column.Caption = caption->GetValue();
    }
    if (const TXMLTag* hint = element.GetTagByName("hint")) {
        column.Hint = hint->GetValue();
    }
    if (const TXMLTag* align = element.GetTagByName("align")) {
        column.Align = ValueOf(align->GetValue(), c_AlignCodes, column.Align);
    }
    if (const TXMLTag* visible = element.GetTagByName("visible")) {
        column.Visible = IsFlagSet(*visible);
    }
    if (const TXMLTag* editable = element.GetTagByName("editable")) {
        column.Editable = ValueOf(editable->GetValue(), c_EditableCodes, column.Editable);
    }
    if (const TXMLTag* width = element.GetTagByName("width")) {
        column.Width = TextToInt(width->GetValue()).value_or(c_WidthOfBadText);
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
                applied.Recalculation = IsFlagSet(element);
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
