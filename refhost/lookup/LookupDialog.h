#pragma once

#include "host/FormatSettings.h"
#include "host/LibraryManager.h"
#include "refhost/database/RowReader.h"

#include <QDialog>
#include <QTimer>

#include <exception>
#include <memory>
#include <optional>
#include <string>

class QKeyEvent;

namespace refhost {

class Languages;
class SearchableTable;

/// The modal list from which a clerk picks one row: typing searches, the arrow keys move, Enter picks, Escape leaves.
/// Restricting and ordering the rows is the query's affair (LookupQuery).
///
/// A long list is shown with its first portion. The rest is read meanwhile and then put in its place at once; what
/// needs all rows, as a search does, waits for it.
class LookupDialog : public QDialog {
    Q_OBJECT
public:
    /// `rows` have both columns and come in the display column's order. The display column stands first and gives the
    /// first order. Reads the first portion; throws EDatabaseError.
    LookupDialog(std::shared_ptr<RowReader> rows, std::string displayColumn, std::string keyColumn,
                 const TFormatSettings& settings, const Languages& languages, QWidget* parent);

    /// What was picked, after the dialog was accepted. Throws the error that broke off the reading and closed the
    /// dialog.
    std::optional<TLookupPick> pick() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildLayout(const Languages& languages, bool isEmpty);
    void readPortion();
    /// What comes by the clock, while nobody needs it yet.
    void readOn();
    void readRest();
    void readRestAtItsEnd();
    void showAll();
    /// Closes the dialog for `pick` to throw.
    void breakOff();
    void acceptPick();

    std::shared_ptr<RowReader> reader_; ///< Null when all rows were read.
    TResultTable read_;                 ///< All rows so far, while there are more.
    std::exception_ptr failure_;
    QTimer readingOn_;
    std::string displayColumn_;
    std::string keyColumn_;
    SearchableTable* list_;
};

} // namespace refhost
