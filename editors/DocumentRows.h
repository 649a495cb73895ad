#pragma once

#include "editwin/model/Column.h"
#include "host/LiveData.h"
#include "host/Types.h"

#include <initializer_list>
#include <span>
#include <string_view>
#include <vector>

class TDataGrid;

/// How the lines of a document come from the database into the cell store, and go back into parameters: what both
/// document editors share. Cells are found by column key, so that the user's order and hidden columns do not matter.
namespace melvark {

/// Both column lists of an editor.
struct DocumentColumns {
    std::span<const RColumn> Active;
    std::span<const RColumn> Defaults;

    /// The active column of that key, else the default one, else the blank record (data column -1).
    const RColumn& ByKey(std::string_view key) const;
    /// The text of the key's cell in the store row; empty when no column has the key.
    const AnsiString& Cell(const TDataGrid& store, std::string_view key, int row) const;
};

/// Makes the store as wide as the columns and puts the rest of the result's rows into it, the first into row 0: the
/// cell of each column gets the field of the column's key as text, save `skippedKey` (none when empty), whose cells
/// stay empty. What the store held before is gone. A result without rows leaves one empty row. Throws EDatabaseError
/// when the result lacks a key.
void FillStore(TDataGrid& store, const DocumentColumns& columns, TLiveResult& result, std::string_view skippedKey = {});

/// The column's texts in the rest of the result's rows, in the order returned.
std::vector<AnsiString> ReadTexts(TLiveResult& result, std::string_view column);

/// The column's texts in all rows of the query, in the order returned. Throws EDatabaseError.
std::vector<AnsiString> QueryTexts(const AnsiString& sql, std::string_view column);

/// How a cell travels to the database: as its text, or as number text, in which every comma becomes a point whatever
/// the locale writes.
enum class ParamForm { Text, NumberText };

/// One parameter of a row insert and the column whose cell fills it.
struct RowParam {
    std::string_view Param;
    std::string_view Key;
    ParamForm Form;
};

/// A parameter whose column was found: one look-up serves all rows of a save.
struct BoundParam {
    std::string_view Param;
    int DataColumn; ///< -1 when no column has the key: always null.
    ParamForm Form;
};

std::vector<BoundParam> BindParams(std::span<const RowParam> params, const DocumentColumns& columns);

/// Sets the parameters, in their order, from one store row. Texts are trimmed; an empty one becomes null.
void SetRowParams(TLiveStoredProc& procedure, std::span<const BoundParam> params, const TDataGrid& store, int row);

/// One identifier that a procedure gets.
struct IdParam {
    std::string_view Param;
    int ID;
};

/// The procedure calls of a save, one for each store row in order. False as soon as one reports failure: the rows
/// inserted so far stay staged in the database, nothing is taken over. Database errors propagate; a refusal names the
/// store row that it is about (EDatabaseError::Row): the one being sent, unless the connection names an earlier one.
bool InsertRows(const AnsiString& procedure, std::span<const RowParam> params, const DocumentColumns& columns,
                const TDataGrid& store);

/// The closing call of a save: takes the staged rows over into the document and names the documents that they came
/// from, null where none was chosen. False when the call reports failure; a refusal throws EDatabaseError.
bool TakeOverRows(const AnsiString& procedure, const IdParam& document, std::initializer_list<IdParam> sources);

} // namespace melvark
