#include "editors/DocumentRows.h"

#include "editwin/model/ColumnList.h"
#include "editwin/model/DataGrid.h"
#include "host/Exceptions.h"
#include "host/Identifier.h"
#include "host/ValueText.h"

#include <algorithm>
#include <utility>

namespace melvark {

namespace {

// Shrinking to one row from at least two empties the kept row too; from one row to one it would change nothing.
void LeaveOneEmptyRow(TDataGrid& store) {
    store.SetRowCount(2);
    store.SetRowCount(1);
}

/// A column of the store and the field of the result that fills it.
struct FilledColumn {
    int DataColumn;
    std::size_t FieldNumber;
    std::vector<AnsiString> Texts{};
};

std::vector<FilledColumn> FilledColumns(const DocumentColumns& columns, const TLiveResult& result,
                                        std::string_view skippedKey) {
    std::vector<FilledColumn> filled;
    for (const RColumn& column : columns.Defaults) {
        if (column.Name != skippedKey) {
            filled.push_back({columns.ByKey(column.Name).DataColumn, result.FieldNumber(column.Name)});
        }
    }
    return filled;
}

AnsiString ParamText(const AnsiString& cell, ParamForm form) {
    AnsiString text(TrimText(cell));
    if (form == ParamForm::NumberText) {
        std::ranges::replace(text, ',', '.');
    }
    return text;
}

bool ExecForRow(TLiveStoredProc& insert, int row) {
    try {
        return insert.Exec(false);
    } catch (const EDatabaseError& error) {
        if (error.Cause() == TDatabaseCause::Failure || error.Row()) {
            throw;
        }
        throw error.AboutRow(row);
    }
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
    if (result.Eof()) {
        return;
    }
    std::vector<FilledColumn> filled = FilledColumns(columns, result, skippedKey);
    const std::size_t rows = result.RowsLeft();
    for (FilledColumn& column : filled) {
        column.Texts.reserve(rows);
    }
    for (; !result.Eof(); result.Next()) {
        for (FilledColumn& column : filled) {
            column.Texts.push_back(result.TakeString(column.FieldNumber));
        }
    }
    store.SetRowCount(static_cast<int>(rows));
    for (FilledColumn& column : filled) {
        store.FillColumn(column.DataColumn, std::move(column.Texts));
    }
}

std::vector<AnsiString> ReadTexts(TLiveResult& result, std::string_view column) {
    std::vector<AnsiString> texts;
    if (result.Eof()) {
        return texts;
    }
    for (const std::size_t number = result.FieldNumber(column); !result.Eof(); result.Next()) {
        texts.push_back(result.Fields(number).AsString());
    }
    return texts;
}

std::vector<AnsiString> QueryTexts(const AnsiString& sql, std::string_view column) {
    TLiveQuery query(sql);
    query.LiveOpen();
    return ReadTexts(query, column);
}

std::vector<BoundParam> BindParams(std::span<const RowParam> params, const DocumentColumns& columns) {
    std::vector<BoundParam> bound;
    for (const RowParam& param : params) {
        bound.push_back({param.Param, columns.ByKey(param.Key).DataColumn, param.Form});
    }
    return bound;
}

void SetRowParams(TLiveStoredProc& procedure, std::span<const BoundParam> params, const TDataGrid& store, int row) {
    for (const BoundParam& param : params) {
        AnsiString text = ParamText(store.GetCells(param.DataColumn, row), param.Form);
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
    const std::vector<BoundParam> bound = BindParams(params, columns);
    for (int row = 0; row < store.GetRowCount(); ++row) {
        TLiveStoredProc insert(procedure);
        SetRowParams(insert, bound, store, row);
        if (!ExecForRow(insert, row)) {
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
