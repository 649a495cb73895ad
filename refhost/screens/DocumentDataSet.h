#pragma once

#include "host/DataSet.h"

#include <optional>
#include <vector>

namespace refhost {

/// The dataset of a screen as a library item gets it: the fields of the current document. It keeps a copy of the row,
/// so that a refresh of the screen does not change it under the item.
class DocumentDataSet : public TDataSet {
public:
    /// `row` is the position in the table; none for a screen without a current document.
    DocumentDataSet(const TResultTable& table, std::optional<int> row, TFormatSettings settings);

    bool IsEmpty() const override;
    std::optional<TField> FindField(std::string_view name) const override;

private:
    std::vector<AnsiString> columns_;
    std::optional<std::vector<TDbValue>> row_;
    TFormatSettings settings_;
};

} // namespace refhost
