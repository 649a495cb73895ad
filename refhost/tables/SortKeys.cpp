#include "refhost/tables/SortKeys.h"

#include "host/DataSet.h"
#include "host/ValueText.h"

#include <QLocale>
#include <QString>

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>

namespace refhost {

namespace {

constexpr double c_beforeEverything = -std::numeric_limits<double>::infinity();

std::optional<double> numberOf(const AnsiString& text) {
    const std::optional<AnsiString> decimal = TextToDecimalText(text);
    if (!decimal) {
        return std::nullopt;
    }
    double number = 0;
    std::from_chars(decimal->data(), decimal->data() + decimal->size(), number);
    return number;
}

std::optional<double> momentOf(const AnsiString& text, const TFormatSettings& settings) {
    const std::optional<TDateTime> moment = TextToDateTime(text, settings);
    if (!moment) {
        return std::nullopt;
    }
    return static_cast<double>(moment->time_since_epoch().count());
}

std::optional<double> measure(const AnsiString& text, ColumnKind kind, const TFormatSettings& settings) {
    return kind == ColumnKind::Number ? numberOf(text) : momentOf(text, settings);
}

AnsiString textOf(const TResultTable& table, std::size_t row, std::size_t column, const TFormatSettings& settings) {
    return TField(table.Columns[column], table.Rows[row][column], settings).AsString();
}

bool isColumnOf(ColumnKind kind, const TResultTable& table, std::size_t column, const TFormatSettings& settings) {
    bool hasValue = false;
    for (std::size_t row = 0; row < table.Rows.size(); ++row) {
        const AnsiString text = textOf(table, row, column, settings);
        if (text.empty()) {
            continue;
        }
        if (!measure(text, kind, settings)) {
            return false;
        }
        hasValue = true;
    }
    return hasValue;
}

std::vector<double> measureAll(const TResultTable& table, std::size_t column, ColumnKind kind,
                               const TFormatSettings& settings) {
    std::vector<double> keys;
    keys.reserve(table.Rows.size());
    for (std::size_t row = 0; row < table.Rows.size(); ++row) {
        keys.push_back(measure(textOf(table, row, column, settings), kind, settings).value_or(c_beforeEverything));
    }
    return keys;
}

std::vector<QCollatorSortKey> collateAll(const TResultTable& table, std::size_t column,
                                         const TFormatSettings& settings) {
    QCollator collator(QLocale(QLocale::Czech, QLocale::Czechia));
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    collator.setNumericMode(true);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(table.Rows.size());
    for (std::size_t row = 0; row < table.Rows.size(); ++row) {
        keys.push_back(collator.sortKey(QString::fromStdString(textOf(table, row, column, settings))));
    }
    return keys;
}

} // namespace

ColumnKind columnKind(const TResultTable& table, std::size_t column, const TFormatSettings& settings) {
    for (const ColumnKind kind : {ColumnKind::Number, ColumnKind::Moment}) {
        if (isColumnOf(kind, table, column, settings)) {
            return kind;
        }
    }
    return ColumnKind::Text;
}

SortKeys::SortKeys(const TResultTable& table, std::size_t column, ColumnKind kind, const TFormatSettings& settings) {
    if (kind == ColumnKind::Text) {
        keys_ = collateAll(table, column, settings);
    } else {
        keys_ = measureAll(table, column, kind, settings);
    }
}

bool SortKeys::isLess(std::size_t leftRow, std::size_t rightRow) const {
    return std::visit([&](const auto& keys) { return keys[leftRow] < keys[rightRow]; }, keys_);
}

} // namespace refhost
