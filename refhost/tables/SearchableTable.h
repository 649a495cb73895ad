#pragma once

#include "host/FormatSettings.h"

#include <QWidget>

#include <string_view>

class QLabel;
class QLineEdit;

namespace refhost {

class Languages;
class ResultTable;

/// A table with a search line above it that narrows the rows while somebody types. Typing works in both: letters typed
/// in the table go to the search line, and the keys that move through rows or sort them work in the search line. Escape
/// empties the search line; when it is empty already, Escape is left to the window.
class SearchableTable : public QWidget {
    Q_OBJECT
public:
    SearchableTable(const TFormatSettings& settings, const Languages& languages, QWidget* parent);

    ResultTable& table() { return *table_; }
    const ResultTable& table() const { return *table_; }
    QLineEdit& search() { return *search_; }
    /// Shows how many rows match; called after the table got a new result.
    void updateCount();
    /// Whether the table has but the first rows of a list that is still being read; said beside their number.
    void setMoreToCome(bool moreToCome);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void applySearch(const QString& typed);
    bool takeTableKey(const QKeyEvent& event);
    bool takeSearchKey(QKeyEvent& event);

    const Languages& languages_;
    ResultTable* table_;
    QLineEdit* search_;
    QLabel* count_;
    bool moreToCome_ = false;
};

} // namespace refhost
