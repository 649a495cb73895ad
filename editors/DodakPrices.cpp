#include "editors/DodakPrices.h"

#include "editwin/model/ColumnList.h"
#include "editwin/model/DataGrid.h"
#include "host/Exceptions.h"
#include "host/LangStr.h"
#include "host/ValueText.h"

#include <algorithm>
#include <array>

namespace melvark {

namespace {

constexpr std::string_view c_VatRateKey = "DPH";

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
    return EConvertError(LangStr("KORDAN30\\MELVARKEDITOR\\NOTFLOATVALUE", {text}, "Hodnota %s není desetinné číslo"));
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

std::vector<RecalculatedCell> ReadCells(const TLiveResult& result) {
    std::vector<RecalculatedCell> cells;
    for (const std::string_view key : c_PriceKeys) {
        if (result.HasField(key)) {
            cells.push_back({AnsiString(key), result.FieldByName(key).AsString()});
        }
    }
    return cells;
}

} // namespace

std::span<const std::string_view> DodakPriceKeys() {
    return c_PriceKeys;
}

AnsiString ChangedCells(const DocumentColumns& columns, const TDataGrid& store, int row) {
    AnsiString list;
    for (const std::string_view key : c_PriceKeys) {
        if (store.GetModified(columns.ByKey(key).DataColumn, row)) {
            list.append(key).append(";");
        }
    }
    return list;
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

std::vector<RecalculatedCell> Recalculate(TDataGrid& store, const DocumentColumns& columns,
                                          const RecalculationRequest& request, const TFormatSettings& settings) {
    TLiveStoredProc prices("MELVARKEDITORDodakVypocetCen");
    prices.ParamByName("a_ZMENENEBUNKY").SetAsString(ChangedCells(columns, store, request.Row));
    prices.ParamByName("a_PREPOCETCEN").SetAsBoolean(request.RecalculatesAll);
    prices.ParamByName("a_FOCUS").SetAsString(request.FocusKey);
    for (const std::string_view key : c_PriceKeys) {
        SendCell(prices.ParamByName("a_" + AnsiString(key)), key, columns.Cell(store, key, request.Row), settings);
    }

    // A result without a row says nothing about the prices; its fields would read as empty texts.
    if (!prices.Exec(true) || prices.Eof()) {
        return {};
    }
    std::vector<RecalculatedCell> cells = ReadCells(prices);
    std::erase_if(cells, [&](const RecalculatedCell& cell) { return columns.ByKey(cell.Key).DataColumn < 0; });
    for (const RecalculatedCell& cell : cells) {
        store.SetCellWithNoChange(columns.ByKey(cell.Key).DataColumn, request.Row, cell.Text);
    }
    return cells;
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
