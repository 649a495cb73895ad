#include "tests/database/RecalculationLine.h"

#include <optional>
#include <sstream>
#include <stdexcept>
#include <utility>
#include <vector>

namespace refhost {

namespace {

TDbValue cellValue(const std::string& text) {
    if (text.empty()) {
        return {};
    }
    return text;
}

std::string shownValue(const TDbValue& value) {
    if (std::holds_alternative<std::monostate>(value)) {
        return "-";
    }
    const auto* text = std::get_if<AnsiString>(&value);
    return text != nullptr ? *text : "(not a text)";
}

const std::string& pricesOf(const RecalculationInput& input, std::size_t row) {
    const std::array<const std::string*, 4> rows{&input.UnitBefore, &input.UnitAfter, &input.TotalAfter,
                                                 &input.TotalBefore};
    return *rows.at(row);
}

std::array<std::string, 4> words(const std::string& prices) {
    std::istringstream stream(prices);
    std::array<std::string, 4> words;
    for (std::string& word : words) {
        stream >> word;
    }
    return words;
}

/// The row of prices and the place in it that a key names.
std::optional<std::pair<std::size_t, std::size_t>> placeOf(std::string_view key) {
    for (std::size_t row = 0; row < c_PriceRows.size(); ++row) {
        for (std::size_t place = 0; place < 4; ++place) {
            if (c_PriceRows[row].Keys[place] == key) {
                return std::pair(row, place);
            }
        }
    }
    return std::nullopt;
}

std::string orEmptyRow(const std::string& prices) {
    return prices.empty() ? "- - - -" : prices;
}

std::string orNone(const std::string& text) {
    return text.empty() ? "-" : text;
}

std::string joinedText(const std::array<std::string, 4>& prices, const std::string& rate, const std::string& discount,
                       const std::string& quantity) {
    std::string text;
    for (std::size_t i = 0; i < c_PriceRows.size(); ++i) {
        text += std::string(c_PriceRows[i].Title) + ": " + prices[i] + "\n";
    }
    return text + rate + " | " + discount + " | " + quantity;
}

} // namespace

bool isPriceKey(std::string_view key) {
    return placeOf(key).has_value();
}

std::string priceText(const RecalculationInput& input, std::string_view key) {
    const auto place = placeOf(key);
    if (!place) {
        throw std::out_of_range("no price: " + std::string(key));
    }
    const std::string word = words(pricesOf(input, place->first)).at(place->second);
    return word == "-" ? "" : word;
}

TProcedureCall recalculationCall(const RecalculationInput& input) {
    TProcedureCall call{"MELVARKEDITORDodakVypocetCen", {}, true};
    call.Params.push_back({"a_ZMENENEBUNKY", input.Changed});
    call.Params.push_back({"a_PREPOCETCEN", input.Recalculate});
    call.Params.push_back({"a_FOCUS", input.Focus});
    for (const PriceRow& row : c_PriceRows) {
        for (const char* key : row.Keys) {
            call.Params.push_back({"a_" + std::string(key), cellValue(priceText(input, key))});
        }
    }
    call.Params.push_back({"a_DPH", cellValue(input.Rate)});
    call.Params.push_back({"a_SLEVA", cellValue(input.Discount)});
    call.Params.push_back({"a_MNOZSTVI", cellValue(input.Quantity)});
    return call;
}

std::string lineText(const TCallResult& result) {
    if (result.Sets.size() != 1 || result.Sets[0].Rows.size() != 1) {
        return "(not one row)";
    }
    const TResultTable& table = result.Sets[0];
    std::vector<std::string> columns;
    for (const PriceRow& row : c_PriceRows) {
        columns.insert(columns.end(), row.Keys.begin(), row.Keys.end());
    }
    columns.insert(columns.end(), {"DPH", "SLEVA", "MNOZSTVI"});
    if (table.Columns != columns) {
        return "(not the row's columns)";
    }

    const std::vector<TDbValue>& values = table.Rows[0];
    std::array<std::string, 4> prices;
    for (std::size_t i = 0; i < 16; ++i) {
        prices[i / 4] += (i % 4 == 0 ? "" : " ") + shownValue(values[i]);
    }
    return joinedText(prices, shownValue(values[16]), shownValue(values[17]), shownValue(values[18]));
}

std::string expectedText(const RecalculationCase& row) {
    return joinedText({orEmptyRow(row.Expected.UnitBefore), orEmptyRow(row.Expected.UnitAfter),
                       orEmptyRow(row.Expected.TotalAfter), orEmptyRow(row.Expected.TotalBefore)},
                      orNone(row.Given.Rate), orNone(row.Expected.Discount.value_or(row.Given.Discount)),
                      orNone(row.Expected.Quantity.value_or(row.Given.Quantity)));
}

} // namespace refhost
