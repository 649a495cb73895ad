#include "refhost/tables/SearchableTable.h"

#include "refhost/Languages.h"
#include "refhost/tables/ResultModel.h"
#include "refhost/tables/ResultTable.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace refhost {

namespace {

constexpr int c_searchWidth = 280;

constexpr std::array c_rowKeys{Qt::Key_Up,       Qt::Key_Down,   Qt::Key_PageUp,
                               Qt::Key_PageDown, Qt::Key_Return, Qt::Key_Enter};

/// A key that the table understands and the search line has no use for.
bool isTableKey(const QKeyEvent& event) {
    return ResultTable::sortColumnOfKey(event) ||
           std::find(c_rowKeys.begin(), c_rowKeys.end(), event.key()) != c_rowKeys.end();
}

/// A key that writes something; blanks only separate words, so that none begins a search.
bool isTyping(const QKeyEvent& event) {
    const bool hasCommand = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !hasCommand && !event.text().isEmpty() && event.text().at(0).isPrint() && event.text().at(0) != u' ';
}

} // namespace

SearchableTable::SearchableTable(const TFormatSettings& settings, const Languages& languages, QWidget* parent)
    : QWidget(parent),
      languages_(languages),
      table_(new ResultTable(settings, languages, this)),
      search_(new QLineEdit(this)),
      count_(new QLabel(this)) {
    search_->setObjectName(u"searchEdit");
    search_->setPlaceholderText(languages.label(texts::searchPlaceholder));
    search_->setAccessibleName(languages.label(texts::searchName));
    search_->setClearButtonEnabled(true);
    search_->setMaximumWidth(c_searchWidth);
    search_->installEventFilter(this);
    table_->installEventFilter(this);
    count_->setObjectName(u"countLabel");
    setFocusProxy(table_);

    auto* line = new QHBoxLayout;
    line->setSpacing(8);
    line->addWidget(search_, 1);
    line->addWidget(count_);
    line->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addLayout(line);
    layout->addWidget(table_, 1);

    connect(search_, &QLineEdit::textChanged, this, &SearchableTable::applySearch);
}

void SearchableTable::applySearch(const QString& typed) {
    table_->setSearch(typed);
    updateCount();
}

void SearchableTable::updateCount() {
    count_->setText(languages_.label(moreToCome_ ? texts::rowCountSoFar : texts::rowCount)
                        .arg(QString::number(table_->shownRowCount()), QString::number(table_->result().rowCount())));
}

void SearchableTable::setMoreToCome(bool moreToCome) {
    moreToCome_ = moreToCome;
    updateCount();
}

bool SearchableTable::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        auto& key = *static_cast<QKeyEvent*>(event);
        if (watched == table_ && takeTableKey(key)) {
            return true;
        }
        if (watched == search_ && takeSearchKey(key)) {
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

bool SearchableTable::takeTableKey(const QKeyEvent& event) {
    if (event.key() == Qt::Key_Escape && !search_->text().isEmpty()) {
        search_->clear();
        return true;
    }
    if (!isTyping(event)) {
        return false;
    }
    search_->setFocus(Qt::OtherFocusReason);
    search_->end(false);
    search_->insert(event.text());
    return true;
}

bool SearchableTable::takeSearchKey(QKeyEvent& event) {
    if (event.key() == Qt::Key_Escape && !search_->text().isEmpty()) {
        search_->clear();
        return true;
    }
    if (!isTableKey(event)) {
        return false;
    }
    QCoreApplication::sendEvent(table_, &event);
    return true;
}

} // namespace refhost
