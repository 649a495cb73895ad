#pragma once

#include "host/Connection.h"
#include "host/FormatSettings.h"
#include "refhost/tables/SortKeys.h"

#include <QAbstractTableModel>

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace refhost {

class Languages;

/// How many columns can be sorted by a key of their own, Alt with the column's number.
inline constexpr int c_sortKeyCount = 9;

/// A result set of the database as a model: the columns for people in the order of the result, one of them put first
/// if wished. The columns that begin with "_" stay reachable by name. Rows whose column "_OTEVRENO" is 0 are greyed.
/// Sorting and searching are ResultOrder's affair.
class ResultModel : public QAbstractTableModel {
    Q_OBJECT
public:
    ResultModel(const TFormatSettings& settings, const Languages& languages, QObject* parent);

    void setTable(TResultTable table, std::string_view firstColumn = {});
    const TResultTable& table() const { return table_; }

    /// Whether the result has the column, shown or not.
    bool hasColumn(std::string_view column) const;
    /// The value's text; empty for null and for a column that the result lacks.
    AnsiString text(int row, std::string_view column) const;
    /// The model's column that shows the result's column.
    std::optional<int> shownColumn(std::string_view column) const;
    /// The names of the shown columns, in the model's order.
    std::vector<AnsiString> shownColumns() const;

    /// Texts of a shown column among which the widest one is found: its different long ones. Measuring thousands of
    /// values would take longer than reading them.
    QStringList longTexts(int column) const;

    bool isLess(int leftRow, int rightRow, int column) const;
    /// The row's shown texts in the form in which searched words are compared.
    const QString& searchText(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Shown {
        std::size_t source;
        ColumnKind kind;
        bool isAmount;
        mutable std::optional<SortKeys> keys; ///< Made when the column is first sorted by.
    };

    std::optional<std::size_t> sourceColumn(std::string_view column) const;
    void chooseColumns(std::string_view firstColumn);
    /// The text as it is searched for.
    QString shownText(std::size_t row, const Shown& column) const;
    /// The same as it is painted: amounts in groups of digits.
    QString displayText(std::size_t row, const Shown& column) const;
    bool isGreyed(std::size_t row) const;

    TFormatSettings settings_;
    const Languages& languages_;
    TResultTable table_;
    std::vector<Shown> shown_;
    std::optional<std::size_t> openColumn_;
    mutable std::vector<QString> searchTexts_; ///< Made when the rows are first searched.
};

} // namespace refhost
