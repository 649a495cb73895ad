#include "refhost/lookup/LookupDialog.h"

#include "refhost/Languages.h"
#include "refhost/tables/ResultModel.h"
#include "refhost/tables/ResultTable.h"
#include "refhost/tables/SearchableTable.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace refhost {

namespace {

constexpr QSize c_startSize(720, 480);

} // namespace

LookupDialog::LookupDialog(TResultTable rows, std::string displayColumn, std::string keyColumn,
                           const TFormatSettings& settings, const Languages& languages, QWidget* parent)
    : QDialog(parent),
      displayColumn_(std::move(displayColumn)),
      keyColumn_(std::move(keyColumn)),
      list_(new SearchableTable(settings, languages, this)) {
    setObjectName(u"lookupDialog");
    setWindowTitle(languages.label(texts::lookupTitle));
    resize(c_startSize);
    ResultTable& table = list_->table();
    table.setObjectName(u"lookupTable");
    table.setAccessibleName(languages.label(texts::lookupList));
    const bool isEmpty = rows.Rows.empty();
    table.setTable(std::move(rows), displayColumn_);
    table.sortBy(displayColumn_, Qt::AscendingOrder);
    table.selectFirst();
    list_->updateCount();
    connect(&table, &ResultTable::rowActivated, this, &LookupDialog::acceptPick);
    buildLayout(languages, isEmpty);
    list_->search().setFocus();
}

void LookupDialog::buildLayout(const Languages& languages, bool isEmpty) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 12);
    layout->setSpacing(12);
    layout->addWidget(list_, 1);
    if (isEmpty) {
        auto* note = new QLabel(languages.label(texts::lookupEmpty), this);
        note->setObjectName(u"emptyLabel");
        layout->addWidget(note);
    }

    auto* pickButton = new QPushButton(languages.label(texts::lookupPick), this);
    pickButton->setObjectName(u"pickButton");
    pickButton->setAutoDefault(false);
    pickButton->setEnabled(!isEmpty);
    connect(pickButton, &QPushButton::clicked, this, &LookupDialog::acceptPick);
    auto* cancelButton = new QPushButton(languages.label(texts::lookupCancel), this);
    cancelButton->setObjectName(u"cancelButton");
    cancelButton->setAutoDefault(false);
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addStretch();
    buttons->addWidget(pickButton);
    buttons->addWidget(cancelButton);
    layout->addLayout(buttons);
}

/// A search that matches nothing leaves nothing to pick, and the list open.
void LookupDialog::acceptPick() {
    if (list_->table().currentRow()) {
        accept();
    }
}

std::optional<TLookupPick> LookupDialog::pick() const {
    const ResultTable& table = list_->table();
    const auto row = table.currentRow();
    if (result() != QDialog::Accepted || !row) {
        return std::nullopt;
    }
    return TLookupPick{table.result().text(*row, displayColumn_), table.result().text(*row, keyColumn_)};
}

} // namespace refhost
