#include "refhost/lookup/LookupDialog.h"

#include "refhost/Languages.h"
#include "refhost/tables/ResultModel.h"
#include "refhost/tables/ResultTable.h"
#include "refhost/tables/SearchableTable.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <iterator>

namespace refhost {

namespace {

constexpr QSize c_startSize(720, 480);

/// Many screens of rows, and read in a moment.
constexpr std::size_t c_portion = 1000;

/// A key that does the same in the first portion as in the whole list.
bool isContentWithSomeRows(const QKeyEvent& event) {
    constexpr std::array c_keys{Qt::Key_Up,    Qt::Key_Down,   Qt::Key_PageUp,  Qt::Key_PageDown, Qt::Key_Return,
                                Qt::Key_Enter, Qt::Key_Escape, Qt::Key_Shift,   Qt::Key_Control,  Qt::Key_Alt,
                                Qt::Key_AltGr, Qt::Key_Meta,   Qt::Key_CapsLock};
    return std::find(c_keys.begin(), c_keys.end(), event.key()) != c_keys.end();
}

} // namespace

LookupDialog::LookupDialog(std::shared_ptr<RowReader> rows, std::string displayColumn, std::string keyColumn,
                           const TFormatSettings& settings, const Languages& languages, QWidget* parent)
    : QDialog(parent),
      reader_(std::move(rows)),
      displayColumn_(std::move(displayColumn)),
      keyColumn_(std::move(keyColumn)),
      list_(new SearchableTable(settings, languages, this)) {
    setObjectName(u"lookupDialog");
    setWindowTitle(languages.label(texts::lookupTitle));
    resize(c_startSize);
    read_.Columns = reader_->columns();
    readPortion();
    ResultTable& table = list_->table();
    table.setObjectName(u"lookupTable");
    table.setAccessibleName(languages.label(texts::lookupList));
    table.setTable(read_, displayColumn_);
    table.sortBy(displayColumn_, Qt::AscendingOrder);
    table.selectFirst();
    list_->setMoreToCome(reader_ != nullptr);
    connect(&table, &ResultTable::rowActivated, this, &LookupDialog::acceptPick);
    buildLayout(languages, read_.Rows.empty());
    list_->search().setFocus();
    if (reader_) {
        // Queued where the table is in the middle of something.
        connect(&table, &ResultTable::currentRowChanged, this, &LookupDialog::readRestAtItsEnd, Qt::QueuedConnection);
        connect(table.horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &LookupDialog::readRest,
                Qt::QueuedConnection);
        connect(&list_->search(), &QLineEdit::textChanged, this, &LookupDialog::readRest); // one that no key typed
        connect(&readingOn_, &QTimer::timeout, this, &LookupDialog::readOn);
        connect(this, &QDialog::finished, &readingOn_, &QTimer::stop);
        table.installEventFilter(this);
        list_->search().installEventFilter(this);
        readingOn_.start(0);
    }
}

void LookupDialog::readPortion() {
    RowReader::Rows rows = reader_->read(c_portion);
    if (rows.size() < c_portion) {
        reader_.reset();
    }
    std::move(rows.begin(), rows.end(), std::back_inserter(read_.Rows));
}

void LookupDialog::readOn() {
    try {
        readPortion();
        if (!reader_) {
            showAll();
        }
    } catch (const std::exception&) {
        breakOff();
    }
}

void LookupDialog::readRest() {
    try {
        if (!reader_) {
            return;
        }
        while (reader_) {
            readPortion();
        }
        showAll();
    } catch (const std::exception&) {
        breakOff();
    }
}

/// The last row of the first portion is not the last of the list.
void LookupDialog::readRestAtItsEnd() {
    if (list_->table().currentIndex().row() == list_->table().shownRowCount() - 1) {
        readRest();
    }
}

/// Leaves the current row and the view where they are.
void LookupDialog::showAll() {
    readingOn_.stop();
    ResultTable& table = list_->table();
    const int scrolled = table.verticalScrollBar()->value();
    table.setTable(std::move(read_), displayColumn_);
    table.verticalScrollBar()->setValue(scrolled);
    list_->setMoreToCome(false);
}

void LookupDialog::breakOff() {
    readingOn_.stop();
    reader_.reset();
    failure_ = std::current_exception();
    reject();
}

bool LookupDialog::eventFilter(QObject* watched, QEvent* event) {
    if (reader_ && event->type() == QEvent::KeyPress && !isContentWithSomeRows(*static_cast<QKeyEvent*>(event))) {
        readRest();
    }
    return QDialog::eventFilter(watched, event);
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
    if (failure_) {
        std::rethrow_exception(failure_);
    }
    const ResultTable& table = list_->table();
    const auto row = table.currentRow();
    if (result() != QDialog::Accepted || !row) {
        return std::nullopt;
    }
    return TLookupPick{table.result().text(*row, displayColumn_), table.result().text(*row, keyColumn_)};
}

} // namespace refhost
