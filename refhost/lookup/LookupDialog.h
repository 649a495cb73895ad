#pragma once

#include "host/Connection.h"
#include "host/FormatSettings.h"
#include "host/LibraryManager.h"

#include <QDialog>

#include <optional>
#include <string>

namespace refhost {

class Languages;
class SearchableTable;

/// The modal list from which a clerk picks one row: typing searches, the arrow keys move, Enter picks, Escape leaves.
/// It shows rows that were read before; restricting them is the query's affair (LookupQuery).
class LookupDialog : public QDialog {
    Q_OBJECT
public:
    /// `rows` has both columns. The display column stands first and gives the first order.
    LookupDialog(TResultTable rows, std::string displayColumn, std::string keyColumn, const TFormatSettings& settings,
                 const Languages& languages, QWidget* parent);

    /// What was picked, after the dialog was accepted.
    std::optional<TLookupPick> pick() const;

private:
    void buildLayout(const Languages& languages, bool isEmpty);
    void acceptPick();

    std::string displayColumn_;
    std::string keyColumn_;
    SearchableTable* list_;
};

} // namespace refhost
