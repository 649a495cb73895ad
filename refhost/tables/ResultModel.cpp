#include "refhost/tables/ResultModel.h"

#include "host/DataSet.h"
#include "refhost/ColumnTitles.h"
#include "refhost/Languages.h"
#include "refhost/tables/SearchWords.h"

#include <QGuiApplication>
#include <QPalette>
#include <QSet>

#include <algorithm>
#include <numeric>

namespace refhost {

namespace {

/// More different long texts than a company has suppliers, and few enough to be measured at once.
constexpr qsizetype c_measuredTexts = 100;

/// Between the text and its background, so that it reads well on light and dark windows alike; the palette's colour of
/// disabled text is too faint for whole rows.
QColor greyText() {
    constexpr double c_textShare = 0.6;
    const QPalette palette = QGuiApplication::palette();
    const QColor text = palette.color(QPalette::Text);
    const QColor base = palette.color(QPalette::Base);
    const auto mix = [](float front, float back) {
        return static_cast<float>(front * c_textShare + back * (1 - c_textShare));
    };
    return QColor::fromRgbF(mix(text.redF(), base.redF()), mix(text.greenF(), base.greenF()),
                            mix(text.blueF(), base.blueF()));
}

/// The number with its whole part in groups of three digits.
QString groupDigits(QString number, const TFormatSettings& settings) {
    const QString separator = QString::fromStdString(settings.ThousandSeparator);
    const qsizetype point = number.indexOf(QLatin1Char(settings.DecimalSeparator));
    const qsizetype first = number.startsWith(u'-') ? 1 : 0;
    for (qsizetype position = (point < 0 ? number.size() : point) - 3; position > first; position -= 3) {
        number.insert(position, separator);
    }
    return number;
}

} // namespace

ResultModel::ResultModel(const TFormatSettings& settings, const Languages& languages, QObject* parent)
    : QAbstractTableModel(parent), settings_(settings), languages_(languages) {}

void ResultModel::setTable(TResultTable table, std::string_view firstColumn) {
    beginResetModel();
    table_ = std::move(table);
    searchTexts_.clear();
    chooseColumns(firstColumn);
    openColumn_ = sourceColumn("_OTEVRENO");
    endResetModel();
}

void ResultModel::chooseColumns(std::string_view firstColumn) {
    shown_.clear();
    for (std::size_t column = 0; column < table_.Columns.size(); ++column) {
        if (isShownColumn(table_.Columns[column])) {
            shown_.push_back(
                {column, columnKind(table_, column, settings_), isAmountColumn(table_.Columns[column]), std::nullopt});
        }
    }
    const auto first = std::find_if(shown_.begin(), shown_.end(), [&](const Shown& each) {
        return SameDbName(table_.Columns[each.source], firstColumn);
    });
    if (first != shown_.end()) {
        std::rotate(shown_.begin(), first, std::next(first));
    }
}

std::optional<std::size_t> ResultModel::sourceColumn(std::string_view column) const {
    const auto found = std::find_if(table_.Columns.begin(), table_.Columns.end(),
                                    [&](const AnsiString& each) { return SameDbName(each, column); });
    if (found == table_.Columns.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(std::distance(table_.Columns.begin(), found));
}

bool ResultModel::hasColumn(std::string_view column) const {
    return sourceColumn(column).has_value();
}

AnsiString ResultModel::text(int row, std::string_view column) const {
    const auto source = sourceColumn(column);
    if (!source) {
        return {};
    }
    return TField(table_.Columns[*source], table_.Rows[static_cast<std::size_t>(row)][*source], settings_).AsString();
}

std::optional<int> ResultModel::shownColumn(std::string_view column) const {
    const auto found = std::find_if(shown_.begin(), shown_.end(),
                                    [&](const Shown& each) { return SameDbName(table_.Columns[each.source], column); });
    if (found == shown_.end()) {
        return std::nullopt;
    }
    return static_cast<int>(std::distance(shown_.begin(), found));
}

std::vector<AnsiString> ResultModel::shownColumns() const {
    std::vector<AnsiString> names;
    names.reserve(shown_.size());
    for (const Shown& column : shown_) {
        names.push_back(table_.Columns[column.source]);
    }
    return names;
}

QStringList ResultModel::longTexts(int column) const {
    const Shown& shown = shown_[static_cast<std::size_t>(column)];
    std::vector<std::size_t> sizes;
    sizes.reserve(table_.Rows.size());
    for (const auto& row : table_.Rows) {
        const auto* text = std::get_if<AnsiString>(&row[shown.source]);
        sizes.push_back(text ? text->size() : TField({}, row[shown.source], settings_).AsString().size());
    }
    std::vector<std::size_t> rows(sizes.size());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    std::stable_sort(rows.begin(), rows.end(),
                     [&](std::size_t left, std::size_t right) { return sizes[left] > sizes[right]; });

    QSet<QString> texts;
    for (const std::size_t row : rows) {
        const bool isShort = sizes[row] * 4 < sizes[rows.front()] * 3;
        if (isShort || sizes[row] == 0 || texts.size() >= c_measuredTexts) {
            break;
        }
        texts.insert(displayText(row, shown));
    }
    return texts.values();
}

bool ResultModel::isLess(int leftRow, int rightRow, int column) const {
    const Shown& shown = shown_[static_cast<std::size_t>(column)];
    if (!shown.keys) {
        shown.keys.emplace(table_, shown.source, shown.kind, settings_);
    }
    return shown.keys->isLess(static_cast<std::size_t>(leftRow), static_cast<std::size_t>(rightRow));
}

const QString& ResultModel::searchText(int row) const {
    if (searchTexts_.empty()) {
        for (std::size_t each = 0; each < table_.Rows.size(); ++each) {
            QStringList texts;
            for (const Shown& column : shown_) {
                texts.append(shownText(each, column));
            }
            searchTexts_.push_back(foldForSearch(texts.join(u'\n')));
        }
    }
    return searchTexts_[static_cast<std::size_t>(row)];
}

QString ResultModel::shownText(std::size_t row, const Shown& column) const {
    const AnsiString& name = table_.Columns[column.source];
    const TField field(name, table_.Rows[row][column.source], settings_);
    return shownValue(name, QString::fromStdString(field.AsString()), languages_);
}

QString ResultModel::displayText(std::size_t row, const Shown& column) const {
    const QString text = shownText(row, column);
    return column.isAmount ? groupDigits(text, settings_) : text;
}

bool ResultModel::isGreyed(std::size_t row) const {
    return openColumn_ && !TField(table_.Columns[*openColumn_], table_.Rows[row][*openColumn_], settings_).AsBoolean();
}

int ResultModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.Rows.size());
}

int ResultModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant ResultModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const auto row = static_cast<std::size_t>(index.row());
    const Shown& column = shown_[static_cast<std::size_t>(index.column())];
    switch (role) {
    case Qt::DisplayRole:
        return displayText(row, column);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (column.kind == ColumnKind::Number ? Qt::AlignRight : Qt::AlignLeft));
    case Qt::ForegroundRole:
        if (isGreyed(row)) {
            return greyText();
        }
        return {};
    default:
        return {};
    }
}

QVariant ResultModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) {
        return {};
    }
    const Shown& column = shown_[static_cast<std::size_t>(section)];
    if (role == Qt::DisplayRole) {
        return columnTitle(table_.Columns[column.source], languages_);
    }
    // The key that sorts by the column stands in its tooltip, so that it can be learned.
    if (role == Qt::ToolTipRole && section < c_sortKeyCount) {
        return QStringLiteral("Alt+%1").arg(section + 1);
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::AlignVCenter |
                                   (column.kind == ColumnKind::Number ? Qt::AlignRight : Qt::AlignLeft));
    }
    return {};
}

} // namespace refhost
