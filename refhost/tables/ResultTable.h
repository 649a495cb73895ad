#pragma once

#include "host/Connection.h"
#include "host/FormatSettings.h"
#include "refhost/tables/TableLook.h"

#include <QTableView>

#include <optional>
#include <string>
#include <string_view>

namespace refhost {

class Languages;
class ResultModel;
class ResultOrder;

/// A result set in a read-only table: one row is current, a click on a heading sorts, and so does Alt with the column's
/// number (see sortColumnOfKey); the second time the other way round. The current row, the order and the widths survive
/// a new result of the same columns; rows are recognised by their column "_ID".
class ResultTable : public QTableView {
    Q_OBJECT
public:
    ResultTable(const TFormatSettings& settings, const Languages& languages, QWidget* parent);

    /// `firstColumn` is put in front of the others when it is given.
    void setTable(TResultTable table, std::string_view firstColumn = {});
    const ResultModel& result() const { return *model_; }

    void sortBy(std::string_view column, Qt::SortOrder order);
    /// Whether rows stand in the order of a column.
    bool isSorted() const;

    /// Takes effect with the first result; columns that it lacks do not count.
    void setLook(const TableLook& look) { wanted_ = look; }
    /// How the table is left, or how it was to look when there was no result yet.
    TableLook look() const;

    /// The column, counted from 0, by which Alt and a digit sort: Alt+1 the first to Alt+9 the ninth; nothing for any
    /// other key.
    static std::optional<int> sortColumnOfKey(const QKeyEvent& event);
    void setSearch(const QString& typed);

    /// The current row of the result; nothing when there is none.
    std::optional<int> currentRow() const;
    /// Makes the row with that "_ID" current and visible; false when no shown row has it.
    bool selectKey(const std::string& key);
    /// Makes the first shown row current, if there is one.
    void selectFirst();
    void selectNothing();
    /// The key ("_ID") of the current row; empty when there is none.
    std::string currentKey() const;

    int shownRowCount() const;

Q_SIGNALS:
    /// Another row became current, or none.
    void currentRowChanged();
    /// Enter or a double click on the current row.
    void rowActivated();

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void sortByPlace(int column);
    void selectShownRow(int row);
    void keepSomeRowCurrent(int wantedRow);
    void fitColumns(bool isNewLayout);
    void applyWanted();

    ResultModel* model_;
    ResultOrder* order_;
    TableLook wanted_;          ///< Until there are columns.
    bool widthsAreSet_ = false; ///< By the user.
    bool fitting_ = false;
};

} // namespace refhost
