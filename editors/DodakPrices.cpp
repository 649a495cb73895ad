#include "editors/DodakPrices.h"

#include "editwin/model/ColumnList.h"
#include "editwin/model/DataGrid.h"
#include "host/Exceptions.h"
#include "host/LangStr.h"
#include "host/ValueText.h"

#include <algorithm>
#include <array>
#include <span>

namespace melvark {

namespace {

constexpr std::string_view c_VatRateKey = "DPH";

// The cells of a row that take part, in the order in which they are sent and read back. "DPH" is a text (the VAT rate's
// name), all others are numbers.
constexpr std::array<std::string_view, 19> c_PriceKeys{
    "JEDNCENABBEZSLEVY",
    "JEDNDPHABEZSLEVY",
    "JEDNDPHBBEZSLEVY",
    "JEDNCENASBEZSLEVY",
    "JEDNCENABSESLEVOU",
    "JEDNDPHASESLEVOU",
    "JEDNDPHBSESLEVOU",
    "JEDNCENASSESLEVOU",
    "CENABSESLEVOU",
    "DPHASESLEVOU",
    "DPHBSESLEVOU",
    "CENASSESLEVOU",
    "CENABBEZSLEVY",
    "DPHABEZSLEVY",
    "DPHBBEZSLEVY",
    "CENASBEZSLEVY",
    "DPH",
    "SLEVA",
    "MNOZSTVI",
};

EConvertError NotANumber(std::string_view text) {
    return EConvertError(LangStr(R"(KORDAN30\MELVARKEDITOR\NOTFLOATVALUE)", {text}, "Hodnota %s není desetinné číslo"));
}

/// The data column of each price key, in the keys' order; -1 where the editor lacks the column.
std::array<int, c_PriceKeys.size()> PriceColumns(const DocumentColumns& columns) {
    std::array<int, c_PriceKeys.size()> found{};
    std::ranges::transform(c_PriceKeys, found.begin(),
                           [&](std::string_view key) { return columns.ByKey(key).DataColumn; });
    return found;
}

void SendCell(TLiveParam& param, std::string_view key, const AnsiString& text, const TFormatSettings& settings) {
    if (key == c_VatRateKey) {
        param.SetAsString(text);
        return;
    }
    if (const std::optional<double> number = CellNumber(text, settings)) {
        param.SetAsFloat(*number);
    } else {
        param.Clear();
    }
}

/// A key that the result or the editor lacks is left alone.
std::vector<RecalculatedCell> TakeCells(TLiveResult& result, std::span<const int> priceColumns) {
    std::vector<RecalculatedCell> cells;
    for (std::size_t place = 0; place < c_PriceKeys.size(); ++place) {
        const std::optional<std::size_t> field = result.FindField(c_PriceKeys[place]);
        if (field && priceColumns[place] >= 0) {
            cells.push_back({priceColumns[place], result.TakeString(*field)});
        }
    }
    return cells;
}

AnsiString ChangedKeys(std::span<const int> priceColumns, const TDataGrid& store, int row) {
    AnsiString list;
    for (std::size_t place = 0; place < c_PriceKeys.size(); ++place) {
        if (store.GetModified(priceColumns[place], row)) {
            list.append(c_PriceKeys[place]).append(";");
        }
    }
    return list;
}

} // namespace

AnsiString ChangedCells(const DocumentColumns& columns, const TDataGrid& store, int row) {
    return ChangedKeys(PriceColumns(columns), store, row);
}

std::optional<double> CellNumber(std::string_view text, const TFormatSettings& settings) {
    const bool isComma = settings.DecimalSeparator == ',';
    AnsiString number(TrimText(text));
    std::ranges::replace(number, isComma ? '.' : ',', settings.DecimalSeparator);
    if (number.empty()) {
        return std::nullopt;
    }
    if (const std::optional<double> value = TextToFloat(number, settings)) {
        return value;
    }
    throw NotANumber(text);
}

std::vector<RecalculatedCell> Recalculate(const TDataGrid& store, const DocumentColumns& columns,
                                          const RecalculationRequest& request, const TFormatSettings& settings) {
    const auto priceColumns = PriceColumns(columns);
    TLiveStoredProc prices("MELVARKEDITORDodakVypocetCen");
    prices.ParamByName("a_ZMENENEBUNKY").SetAsString(ChangedKeys(priceColumns, store, request.Row));
    prices.ParamByName("a_PREPOCETCEN").SetAsBoolean(request.RecalculatesAll);
    prices.ParamByName("a_FOCUS").SetAsString(request.FocusKey);
    for (std::size_t place = 0; place < c_PriceKeys.size(); ++place) {
        const std::string_view key = c_PriceKeys[place];
        SendCell(prices.ParamByName("a_" + AnsiString(key)), key, store.GetCells(priceColumns[place], request.Row),
                 settings);
    }

    // A result without a row says nothing about the prices; its fields would read as empty texts.
    if (!prices.Exec(true) || prices.Eof()) {
        return {};
    }
    return TakeCells(prices, priceColumns);
}

bool IsDiscount(std::string_view text, const TFormatSettings& settings) {
    if (text.empty()) {
        return true;
    }
    const std::optional<double> discount = TextToFloat(text, settings);
    if (!discount) {
        throw NotANumber(text);
    }
    return *discount >= 0 && *discount <= 100;
}

} // namespace melvark
