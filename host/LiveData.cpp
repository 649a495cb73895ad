#include "host/LiveData.h"

#include "host/ContractTexts.h"
#include "host/Exceptions.h"
#include "host/HostServices.h"

#include <algorithm>
#include <utility>

namespace {

/// The name of the parameter at a place among the declared ones: inputs first, then outputs.
const AnsiString& DeclaredName(const TProcedureInfo& info, std::size_t place) {
    return place < info.Inputs.size() ? info.Inputs[place] : info.Outputs[place - info.Inputs.size()];
}

} // namespace

TLiveParam::TLiveParam(AnsiString name) : FName(std::move(name)) {}

void TLiveParam::SetAsInteger(std::int32_t value) {
    FValue = std::int64_t{value};
}

void TLiveParam::SetAsFloat(double value) {
    FValue = value;
}

void TLiveParam::SetAsBoolean(bool value) {
    FValue = value;
}

void TLiveParam::SetAsString(AnsiString value) {
    FValue = std::move(value);
}

void TLiveParam::SetAsVariant(TVariant value) {
    if (const auto* integer = std::get_if<std::int32_t>(&value)) {
        SetAsInteger(*integer);
    } else {
        SetAsString(std::get<AnsiString>(std::move(value)));
    }
}

void TLiveParam::Clear() {
    FValue = std::monostate{};
}

bool TLiveParam::IsNull() const {
    return std::holds_alternative<std::monostate>(FValue);
}

bool TLiveParam::AsBoolean() const {
    const TFormatSettings anyFormat; // a boolean is written alike in all
    return TField(FName, FValue, anyFormat).AsBoolean();
}

bool TLiveResult::Eof() const {
    const TResultTable* table = Table();
    return table == nullptr || FRow >= table->Rows.size();
}

void TLiveResult::Next() {
    ++FRow;
}

TField TLiveResult::FieldByName(std::string_view column) const {
    return Fields(FieldNumber(column));
}

std::size_t TLiveResult::FieldNumber(std::string_view column) const {
    if (const std::optional<std::size_t> number = FindField(column)) {
        return *number;
    }
    throw EDatabaseError(Sentence(melvark::c_NoFieldInResult, {column}));
}

std::optional<std::size_t> TLiveResult::FindField(std::string_view column) const {
    const TResultTable* table = Table();
    if (table == nullptr) {
        return std::nullopt;
    }
    const auto found =
        std::ranges::find_if(table->Columns, [&](const AnsiString& name) { return SameDbName(name, column); });
    if (found == table->Columns.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - table->Columns.begin());
}

TField TLiveResult::Fields(std::size_t number) const {
    return TField(Table()->Columns.at(number), Eof() ? TDbValue{} : Table()->Rows[FRow].at(number),
                  CurrentHost().FormatSettings());
}

AnsiString TLiveResult::TakeString(std::size_t number) {
    if (Eof()) {
        return {};
    }
    TDbValue& value = FTables[FTable].Rows[FRow].at(number);
    if (std::holds_alternative<std::monostate>(value)) {
        return {};
    }
    auto* const text = std::get_if<AnsiString>(&value);
    return text != nullptr ? std::move(*text) : TField({}, value, CurrentHost().FormatSettings()).AsString();
}

std::size_t TLiveResult::RowsLeft() const {
    return Eof() ? 0 : Table()->Rows.size() - FRow;
}

bool TLiveResult::HasField(std::string_view column) const {
    return FindField(column).has_value();
}

void TLiveResult::SetTables(std::vector<TResultTable> tables) {
    FTables = std::move(tables);
    FTable = 0;
    FRow = 0;
}

bool TLiveResult::NextTable() {
    if (FTable < FTables.size()) {
        ++FTable;
    }
    FRow = 0;
    return FTable < FTables.size();
}

const TResultTable* TLiveResult::Table() const {
    return FTable < FTables.size() ? &FTables[FTable] : nullptr;
}

TLiveStoredProc::TLiveStoredProc(AnsiString name) : FName(std::move(name)) {
    // A missing host is reported where the object is made, not at the first parameter.
    static_cast<void>(CurrentHost());
}

TLiveStoredProc::~TLiveStoredProc() = default;

TLiveParam& TLiveStoredProc::ParamByName(std::string_view name) {
    const std::optional<std::size_t> place = FindDeclared(name);
    if (!place) {
        throw EDatabaseError(Sentence(melvark::c_NoParameter, {FName, name}));
    }
    return ParamAt(*place, name);
}

bool TLiveStoredProc::HasParam(std::string_view name) {
    return FindDeclared(name).has_value();
}

std::optional<std::size_t> TLiveStoredProc::FindDeclared(std::string_view name) {
    const TProcedureInfo& info = Info();
    if (FExpectedInput < info.Inputs.size() && SameDbName(info.Inputs[FExpectedInput], name)) {
        return FExpectedInput++;
    }
    for (std::size_t place = 0; place < info.Inputs.size() + info.Outputs.size(); ++place) {
        if (SameDbName(DeclaredName(info, place), name)) {
            FExpectedInput = place + 1;
            return place;
        }
    }
    return std::nullopt;
}

/// The parameter named before, or a new one under this name.
TLiveParam& TLiveStoredProc::ParamAt(std::size_t place, std::string_view name) {
    const auto known = std::ranges::find(FParams, place, &TNamedParam::Place);
    if (known != FParams.end()) {
        return *known->Param;
    }
    FParams.push_back({std::make_unique<TLiveParam>(AnsiString(name)), place});
    return *FParams.back().Param;
}

bool TLiveStoredProc::Exec(bool open) {
    TProcedureCall call{.Name = FName, .Params = {}, .Open = open};
    for (const TNamedParam& named : FParams) {
        if (named.Place < Info().Inputs.size()) {
            call.Params.push_back({named.Param->Name(), named.Param->Value()});
        }
    }
    SetTables({});
    TCallResult result = CurrentHost().Connection().Execute(call);
    if (!result.Success) {
        return false;
    }
    for (TDbParam& output : result.Outputs) {
        if (const std::optional<std::size_t> place = FindDeclared(output.Name)) {
            ParamAt(*place, output.Name).FValue = std::move(output.Value);
        }
    }
    if (open) {
        SetTables(std::move(result.Sets));
    }
    return true;
}

bool TLiveStoredProc::Resume() {
    return NextTable();
}

const TProcedureInfo& TLiveStoredProc::Info() {
    if (!FInfo) {
        FInfo = std::make_unique<TProcedureInfo>(CurrentHost().Connection().Describe(FName));
    }
    return *FInfo;
}

TLiveQuery::TLiveQuery(AnsiString sql) : FSql(std::move(sql)) {
    static_cast<void>(CurrentHost());
}

TLiveQuery::~TLiveQuery() = default;

void TLiveQuery::LiveOpen() {
    SetTables({});
    std::vector<TResultTable> tables;
    tables.push_back(CurrentHost().Connection().Query(FSql));
    SetTables(std::move(tables));
}
