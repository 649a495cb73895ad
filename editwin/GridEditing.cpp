#include "editwin/GridEditing.h"

#include "editwin/model/ColumnList.h"

#include <utility>

namespace melvark {

const RColumn* GridEditing::ColumnAt(int gridCol) const {
    const int index = VisibleColumnIndex(Active, gridCol);
    return index < 0 ? nullptr : &Active[static_cast<std::size_t>(index)];
}

RColumn* GridEditing::ColumnAt(int gridCol) {
    return const_cast<RColumn*>(std::as_const(*this).ColumnAt(gridCol));
}

} // namespace melvark
