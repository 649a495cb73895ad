#pragma once

#include "host/Types.h"

#include <cstdint>
#include <functional>
#include <vector>

class QAction;
class QWidget;

/// Horizontal alignment of a column's cell texts.
enum TColumnAlign : std::uint8_t { caLeft, caCenter, caRight };

/// What the user lets happen on a column.
enum TEditable : std::uint8_t {
    eNone,  ///< No editor opens.
    eAuto,  ///< The editor opens on a click, and keyboard traversal stops here.
    eManual ///< The editor opens on a click only; traversal passes by.
};

/// The fixed role of a column, which the user cannot change.
enum TColumnType : std::uint8_t {
    ctNormal,   ///< Editable if the other rules allow it.
    ctReadOnly, ///< Shown, never editable, its editability fixed.
    ctHidden    ///< A key column: never shown, never in a menu, never counted.
};

/// The type of a column's values. Integers, decimal numbers and dates are checked when a cell is left.
enum TColumnsDataType : std::uint8_t { cdtString, cdtInt, cdtFlt, cdtType, cdtDate };

/// Called after a changed value was committed, with the grid column, the grid row (row 0 is the header) and the
/// committed text. False rejects the value: the editor stays open on its cell. Empty means no call.
using TColumnCallback = std::function<bool(int aCol, int aRow, const AnsiString& aValue)>;

/// An editor's own rule whether the cell of a grid column and grid row may be edited. Empty lets every cell pass.
using TIsEditable = std::function<bool(int aCol, int aRow)>;

/// One column of an editor's grid: a plain record, copied whole. A list of these is the grid's layout; the order of the
/// list is the order of the grid. A default-made record is blank: it names nothing, is not shown and has no data.
///
/// The record owns none of what it points to: the menu item belongs to the menu, the editor to the form, the values to
/// whoever made the column.
struct RColumn {
    AnsiString Name = {};    ///< The key, unique within an editor ("MNOZSTVI").
    AnsiString Caption = {}; ///< The header's text, and that of the menu item of a hidden column.
    AnsiString Hint = {};    ///< Shown over the header; empty for none.
    TColumnAlign Align = caLeft;
    bool Visible = false; ///< False when the user has hidden the column.
    TEditable Editable = eAuto;
    TColumnType ColumnType = ctNormal;
    std::int32_t Width = 100;      ///< Pixels at 96 dpi.
    AnsiString DisplayFormat = {}; ///< Format text for showing a value ("%m"); empty shows the value as stored.
    TColumnsDataType DataType = cdtString;
    QAction* HiddenMenuItem = nullptr; ///< The item that shows the hidden column again; null while it is not hidden.
    /// The column of the cell store that holds the values, whatever the order of the grid; -1 for none.
    std::int32_t DataColumn = -1;
    QWidget* Editor = nullptr; ///< The column's own in-place editor, made by the form for a column with values.
    const std::vector<AnsiString>* Values = nullptr; ///< The choices of a list column; null for free text.
    TColumnCallback Callback = {};
};

/// A record of the given fields, nothing added. Callers pass null for the editor and the menu item, which the form
/// fills.
RColumn ColumnProperties(AnsiString name, AnsiString caption, AnsiString hint, TColumnAlign align, bool visible,
                         TEditable editable, TColumnType columnType, std::int32_t width, TColumnsDataType dataType,
                         std::int32_t dataColumn, AnsiString displayFormat, const std::vector<AnsiString>* values,
                         QWidget* editor, TColumnCallback callback, QAction* hiddenMenuItem);

namespace melvark {

/// The record of a look-up that found nothing and of a place not yet filled: empty texts, left, not visible,
/// editability automatic, 100 pixels wide, data column -1. It lives for the whole program.
const RColumn& BlankColumn();

} // namespace melvark
