#include "refhost/screens/DocumentDataSet.h"

namespace refhost {

DocumentDataSet::DocumentDataSet(const TResultTable& table, std::optional<int> row, TFormatSettings settings)
    : columns_(table.Columns), settings_(std::move(settings)) {
    if (row) {
        row_ = table.Rows.at(static_cast<std::size_t>(*row));
    }
}

bool DocumentDataSet::IsEmpty() const {
    return !row_;
}

std::optional<TField> DocumentDataSet::FindField(std::string_view name) const {
    for (std::size_t column = 0; column < columns_.size(); ++column) {
        if (SameDbName(columns_[column], name)) {
            return TField(columns_[column], row_ ? (*row_)[column] : TDbValue(), settings_);
        }
    }
    return std::nullopt;
}

} // namespace refhost
