#include "tests/database/RecalculationLine.h"

#include <sstream>
#include <vector>

namespace refhost {

namespace {

TDbValue cellValue(const std::string& text) {
    if (text.empty() || text == "-")
        return {};
    return text;
}

std::string shownValue(const TDbValue& value) {
    if (std::holds_alternative<std::monostate>(value))
        return "-";
    const auto* text = std::get_if<AnsiString>(&value);
    return text != nullptr ? *text : "(not a text)";
}

void addPrices(TProcedureCall& call, const PriceRow& row, const char* prices) {
    std::istringstream words(prices);
    for (const char* key : row.Keys) {
        std::string word;
        words >> word;
        call.Params.push_back({"a_" + std::string(key), cellValue(word)});
    }
}

std::string orEmptyRow(const char* prices) {
    return *prices == '\0' ? "- - - -" : prices;
}
std::string orNone(const char* text) {
    return *text == '\0' ? "-" : text;
}

std::string joinedText(const std::array<std::string, 4>& prices, const std::string& rate, const std::string& discount,
                       const std::string& quantity) {
    std::string text;
    for (std::size_t i = 0; i < c_PriceRows.size(); ++i)
        text += std::string(c_PriceRows[i].Title) + ": " + prices[i] + "\n";
    return text + rate + " | " + discount + " | " + quantity;
}

} // namespace

TProcedureCall recalculationCall(const RecalculationInput& input) {
    TProcedureCall call{"MELVARKEDITORDodakVypocetCen", {}, true};
    call.Params.push_back({"a_ZMENENEBUNKY", AnsiString(input.Changed)});
    call.Params.push_back({"a_PREPOCETCEN", input.Recalculate});
    call.Params.push_back({"a_FOCUS", AnsiString(input.Focus)});
    addPrices(call, c_PriceRows[0], input.UnitBefore);
    addPrices(call, c_PriceRows[1], input.UnitAfter);
    addPrices(call, c_PriceRows[2], input.TotalAfter);
    addPrices(call, c_PriceRows[3], input.TotalBefore);
    call.Params.push_back({"a_DPH", cellValue(input.Rate)});
    call.Params.push_back({"a_SLEVA", cellValue(input.Discount)});
    call.Params.push_back({"a_MNOZSTVI", cellValue(input.Quantity)});
    return call;
}

std::string lineText(const TCallResult& result) {
    if (result.Sets.size() != 1 || result.Sets[0].Rows.size() != 1)
        return "(not one row)";
    const TResultTable& table = result.Sets[0];
    std::vector<std::string> columns;
    for (const PriceRow& row : c_PriceRows)
        columns.insert(columns.end(), row.Keys.begin(), row.Keys.end());
    columns.insert(columns.end(), {"DPH", "SLEVA", "MNOZSTVI"});
    if (table.Columns != columns)
        return "(not the row's columns)";

    const std::vector<TDbValue>& values = table.Rows[0];
    std::array<std::string, 4> prices;
    for (std::size_t i = 0; i < 16; ++i)
        prices[i / 4] += (i % 4 == 0 ? "" : " ") + shownValue(values[i]);
    return joinedText(prices, shownValue(values[16]), shownValue(values[17]), shownValue(values[18]));
}

std::string expectedText(const RecalculationCase& row) {
    return joinedText({orEmptyRow(row.Expected.UnitBefore), orEmptyRow(row.Expected.UnitAfter),
                       orEmptyRow(row.Expected.TotalAfter), orEmptyRow(row.Expected.TotalBefore)},
                      orNone(row.Given.Rate), orNone(row.Expected.Discount.value_or(row.Given.Discount)),
                      orNone(row.Expected.Quantity.value_or(row.Given.Quantity)));
}

} // namespace refhost
