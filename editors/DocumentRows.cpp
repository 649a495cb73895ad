#include "editors/DocumentRows.h"

#include "editwin/model/ColumnList.h"
#include "editwin/model/DataGrid.h"
#include "host/Identifier.h"
#include "host/ValueText.h"

#include <algorithm>

namespace melvark {

namespace {

// Shrinking to one row from at least two empties the kept row too; from one row to one it would change nothing.
void LeaveOneEmptyRow(TDataGrid& store) {
    store.SetRowCount(2);
    store.SetRowCount(1);
}

AnsiString ParamText(const AnsiString& cell, ParamForm form) {
    AnsiString text(TrimText(cell));
    if (form == ParamForm::NumberText) {
        std::ranges::replace(text, ',', '.');
    }
    return text;
}

} // namespace

const RColumn& DocumentColumns::ByKey(std::string_view key) const {
    return ColumnSettings(Active, Defaults, key);
}

const AnsiString& DocumentColumns::Cell(const TDataGrid& store, std::string_view key, int row) const {
    return store.GetCells(ByKey(key).DataColumn, row);
}

void FillStore(TDataGrid& store, const DocumentColumns& columns, TLiveResult& result, std::string_view skippedKey) {
    store.SetColCount(static_cast<int>(columns.Defaults.size()));
    LeaveOneEmptyRow(store);
    for (int row = 0; !result.Eof(); result.Next(), ++row) {
        if (row > 0) {
            store.SetRowCount(row + 1);
        }
        for (const RColumn& column : columns.Defaults) {
            if (column.Name != skippedKey) {
                store.SetCells(columns.ByKey(column.Name).DataColumn, row, result.FieldByName(column.Name).AsString());
            }
        }
    }
}

std::vector<AnsiString> ReadTexts(TLiveResult& result, std::string_view column) {
    std::vector<AnsiString> texts;
    for (; !result.Eof(); result.Next()) {
        texts.push_back(result.FieldByName(column).AsString());
    }
    return texts;
}

std::vector<AnsiString> QueryTexts(const AnsiString& sql, std::string_view column) {
    TLiveQuery query(sql);
    query.LiveOpen();
    return ReadTexts(query, column);
}

void SetRowParams(TLiveStoredProc& procedure, std::span<const RowParam> params, const DocumentColumns& columns,
                  const TDataGrid& store, int row) {
    for (const RowParam& param : params) {
        AnsiString text = ParamText(columns.Cell(store, param.Key, row), param.Form);
        TLiveParam& target = procedure.ParamByName(param.Param);
        if (text.empty()) {
            target.Clear();
        } else {
            target.SetAsString(std::move(text));
        }
    }
}

bool InsertRows(const AnsiString& procedure, std::span<const RowParam> params, const DocumentColumns& columns,
                const TDataGrid& store) {
    for (int row = 0; row < store.GetRowCount(); ++row) {
        TLiveStoredProc insert(procedure);
        SetRowParams(insert, params, columns, store, row);
        if (!insert.Exec(false)) {
            return false;
        }
    }
    return true;
}

bool TakeOverRows(const AnsiString& procedure, const IdParam& document, std::initializer_list<IdParam> sources) {
    TLiveStoredProc closing(procedure);
    closing.ParamByName(document.Param).SetAsInteger(document.ID);
    for (const IdParam& source : sources) {
        SetIdentifier(closing.ParamByName(source.Param), source.ID);
    }
    return closing.Exec(false);
}

} // namespace melvark
