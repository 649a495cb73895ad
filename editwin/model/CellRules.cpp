#include "editwin/model/CellRules.h"

namespace melvark {

bool PassesRule(const TIsEditable& rule, int col, int row) {
    return !rule || rule(col, row);
}

bool MayOpen(const RColumn& column, Reach reach, const TIsEditable& rule, int col, int row) {
    const bool reachable = reach == Reach::BySelection ? column.Editable != eNone : column.Editable == eAuto;
    return column.ColumnType == ctNormal && reachable && PassesRule(rule, col, row);
}

} // namespace melvark
