#include "refhost/screens/DocumentScreen.h"

#include "host/widgets/Guard.h"
#include "refhost/Languages.h"
#include "refhost/screens/Screens.h"
#include "refhost/tables/ResultModel.h"
#include "refhost/tables/ResultTable.h"
#include "refhost/tables/SearchableTable.h"

#include <QLabel>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QVBoxLayout>

#include <string>

namespace refhost {

namespace {

constexpr int c_margin = 12;
constexpr int c_spacing = 8;

} // namespace

DocumentScreen::DocumentScreen(const ScreenDefinition& definition, TConnection& connection,
                               const TFormatSettings& settings, const Languages& languages, QWidget* parent)
    : QWidget(parent),
      definition_(definition),
      connection_(connection),
      settings_(settings),
      languages_(languages),
      documents_(new SearchableTable(settings, languages, this)),
      linesTitle_(new QLabel(this)),
      lines_(new ResultTable(settings, languages, this)),
      splitter_(new QSplitter(Qt::Vertical, this)) {
    setObjectName(QString::fromLatin1(definition.code.data(), static_cast<qsizetype>(definition.code.size())));
    documents_->table().setObjectName(u"documentsTable");
    documents_->table().setAccessibleName(languages.label(texts::documentList));
    lines_->setObjectName(u"linesTable");
    lines_->setAccessibleName(languages.label(texts::lineList));
    linesTitle_->setObjectName(u"linesTitle");
    linesTitle_->setTextFormat(Qt::PlainText);
    QFont titleFont = linesTitle_->font();
    titleFont.setBold(true);
    linesTitle_->setFont(titleFont);
    setFocusProxy(documents_);

    auto* below = new QWidget(this);
    auto* belowLayout = new QVBoxLayout(below);
    belowLayout->setContentsMargins(0, c_spacing, 0, 0);
    belowLayout->setSpacing(c_spacing);
    belowLayout->addWidget(linesTitle_);
    belowLayout->addWidget(lines_, 1);

    splitter_->setObjectName(u"splitter");
    splitter_->setChildrenCollapsible(false);
    splitter_->addWidget(documents_);
    splitter_->addWidget(below);
    splitter_->setStretchFactor(0, 3);
    splitter_->setStretchFactor(1, 2);
    connect(splitter_, &QSplitter::splitterMoved, this, [this] { heightsAreSet_ = true; });
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(c_margin, c_margin, c_margin, c_margin);
    layout->addWidget(splitter_);

    melvark::ConnectGuarded(&documents_->table(), &ResultTable::currentRowChanged, this, &DocumentScreen::showLines);
}

void DocumentScreen::refresh() {
    {
        const QScopedValueRollback refreshing(refreshing_, true);
        documents_->table().setTable(readDocuments(connection_, definition_));
        documents_->updateCount();
        if (!sorted_) {
            if (!documents_->table().isSorted()) {
                documents_->table().sortBy(definition_.sortColumn, definition_.sortOrder);
            }
            documents_->table().selectFirst();
            sorted_ = true;
        }
    }
    showLines();
}

std::optional<std::set<std::int64_t>> DocumentScreen::created() const {
    return readCreated(connection_, definition_);
}

QStringList DocumentScreen::refreshForCreated(const std::optional<std::set<std::int64_t>>& before) {
    refresh();
    const auto after = created();
    if (!before || !after) {
        return {};
    }
    std::set<std::string> made;
    for (const std::int64_t id : *after) {
        if (!before->contains(id)) {
            made.insert(std::to_string(id));
        }
    }
    const ResultModel& documents = documents_->table().result();
    QStringList numbers;
    for (int row = 0; row < documents.rowCount(); ++row) {
        if (made.contains(documents.text(row, "_ID"))) {
            numbers.append(QString::fromStdString(documents.text(row, "CISLO")));
        }
    }
    return numbers;
}

void DocumentScreen::showLines() {
    if (refreshing_) {
        return;
    }
    const ResultTable& documents = documents_->table();
    const auto row = documents.currentRow();
    if (!row) {
        linesTitle_->setText(languages_.label(texts::noDocument));
        lines_->setTable({.Columns = lines_->result().table().Columns, .Rows = {}});
        return;
    }
    const QString number = QString::fromStdString(documents.result().text(*row, "CISLO"));
    linesTitle_->setText(languages_.label(texts::documentLines).arg(number));
    lines_->setTable(readLines(connection_, definition_, dataSet().FieldByName("_ID").AsInteger()));
    // One marked row on the screen tells where the keys go; a line is marked once the cursor is in the lines.
    lines_->selectNothing();
}

DocumentDataSet DocumentScreen::dataSet() const {
    const ResultTable& documents = documents_->table();
    return {documents.result().table(), documents.currentRow(), settings_};
}

void DocumentScreen::setLook(const ScreenLook& look) {
    documents_->table().setLook(look.documents);
    lines_->setLook(look.lines);
    heightsAreSet_ = look.documentsHeight > 0 && look.linesHeight > 0;
    if (heightsAreSet_) {
        splitter_->setSizes({look.documentsHeight, look.linesHeight});
    }
}

ScreenLook DocumentScreen::look() const {
    ScreenLook look{.documents = documents_->table().look(), .lines = lines_->look()};
    if (heightsAreSet_) {
        look.documentsHeight = splitter_->sizes().at(0);
        look.linesHeight = splitter_->sizes().at(1);
    }
    return look;
}

void DocumentScreen::startSearch() {
    documents_->search().setFocus(Qt::ShortcutFocusReason);
    documents_->search().selectAll();
}

} // namespace refhost
