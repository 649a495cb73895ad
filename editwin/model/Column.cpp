#include "editwin/model/Column.h"

#include <utility>

RColumn ColumnProperties(AnsiString name, AnsiString caption, AnsiString hint, TColumnAlign align, bool visible,
                         TEditable editable, TColumnType columnType, std::int32_t width, TColumnsDataType dataType,
                         std::int32_t dataColumn, AnsiString displayFormat, const std::vector<AnsiString>* values,
                         QWidget* editor, TColumnCallback callback, QAction* hiddenMenuItem) {
    return RColumn{.Name = std::move(name),
                   .Caption = std::move(caption),
                   .Hint = std::move(hint),
                   .Align = align,
                   .Visible = visible,
                   .Editable = editable,
                   .ColumnType = columnType,
                   .Width = width,
                   .DisplayFormat = std::move(displayFormat),
                   .DataType = dataType,
                   .HiddenMenuItem = hiddenMenuItem,
                   .DataColumn = dataColumn,
                   .Editor = editor,
                   .Values = values,
                   .Callback = std::move(callback)};
}

namespace melvark {

const RColumn& BlankColumn() {
    static const RColumn blank;
    return blank;
}

} // namespace melvark
