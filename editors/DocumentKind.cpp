#include "editors/DocumentKind.h"

#include "editwin/model/DataGrid.h"

namespace melvark {

bool FillLines(TDataGrid& store, const DocumentColumns& columns, const AnsiString& procedure,
               std::initializer_list<LinesParam> params, std::string_view skippedKey) {
    TLiveStoredProc lines(procedure);
    for (const auto& [name, value] : params) {
        TLiveParam& param = lines.ParamByName(name);
        if (const int* const id = std::get_if<int>(&value)) {
            SetIdentifier(param, *id);
        } else {
            param.SetAsBoolean(std::get<bool>(value));
        }
    }
    if (!lines.Exec(true)) {
        return false;
    }
    FillStore(store, columns, lines, skippedKey);
    return true;
}

bool SaveLines(const DocumentKind& kind, const DocumentColumns& columns, const TDataGrid& store, int id,
               std::initializer_list<IdParam> sources) {
    return InsertRows(kind.InsertProcedure, kind.RowParams, columns, store) &&
           TakeOverRows(kind.TakeOverProcedure, {kind.IdParam, id}, sources);
}

} // namespace melvark
