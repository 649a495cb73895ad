#include "host/LiveData.h"

#include "host/ContractTexts.h"
#include "host/Exceptions.h"
#include "host/HostServices.h"

#include <algorithm>
#include <utility>

namespace {

bool ContainsName(const std::vector<AnsiString>& names, std::string_view name) {
    return std::any_of(names.begin(), names.end(), [&](const AnsiString& other) { return SameDbName(other, name); });
}

using TParams = std::vector<std::unique_ptr<TLiveParam>>;

/// The parameter of that name among those touched so far, or null.
TLiveParam* FindParam(const TParams& params, std::string_view name) {
    const auto found =
        std::find_if(params.begin(), params.end(), [&](const auto& param) { return SameDbName(param->Name(), name); });
    return found == params.end() ? nullptr : found->get();
}

TLiveParam& FindOrAppendParam(TParams& params, std::string_view name) {
    if (TLiveParam* known = FindParam(params, name)) {
        return *known;
    }
    return *params.emplace_back(std::make_unique<TLiveParam>(AnsiString(name)));
}

std::size_t FindColumn(const TResultTable& table, std::string_view column) {
    const auto found = std::find_if(table.Columns.begin(), table.Columns.end(),
                                    [&](const AnsiString& name) { return SameDbName(name, column); });
    return static_cast<std::size_t>(found - table.Columns.begin());
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
    const TResultTable* table = Table();
    const std::size_t number = table != nullptr ? FindColumn(*table, column) : 0;
    if (table == nullptr || number == table->Columns.size()) {
        throw EDatabaseError(Sentence(melvark::c_NoFieldInResult, {column}));
    }
    return number;
}

TField TLiveResult::Fields(std::size_t number) const {
    return TField(Table()->Columns.at(number), Eof() ? TDbValue{} : Table()->Rows[FRow].at(number),
                  CurrentHost().FormatSettings());
}

bool TLiveResult::HasField(std::string_view column) const {
    const TResultTable* table = Table();
    return table != nullptr && FindColumn(*table, column) < table->Columns.size();
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
    if (!HasParam(name)) {
        throw EDatabaseError(Sentence(melvark::c_NoParameter, {FName, name}));
    }
    return FindOrAppendParam(FParams, name);
}

bool TLiveStoredProc::HasParam(std::string_view name) {
    return ContainsName(Info().Inputs, name) || ContainsName(Info().Outputs, name);
}

bool TLiveStoredProc::Exec(bool open) {
    TProcedureCall call{.Name = FName, .Params = {}, .Open = open};
    for (const auto& param : FParams) {
        if (ContainsName(Info().Inputs, param->Name())) {
            call.Params.push_back({param->Name(), param->Value()});
        }
    }
    SetTables({});
    TCallResult result = CurrentHost().Connection().Execute(call);
    if (!result.Success) {
        return false;
    }
    for (TDbParam& output : result.Outputs) {
        FindOrAppendParam(FParams, output.Name).FValue = std::move(output.Value);
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
