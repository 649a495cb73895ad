#include "host/DataSet.h"

#include "host/ContractTexts.h"
#include "host/Exceptions.h"
#include "host/ValueText.h"

#include <cmath>
#include <limits>
#include <utility>

namespace {

/// A set of functions, one for each type that a value can have.
template <class... Functions>
struct Readings : Functions... {
    using Functions::operator()...;
};
template <class... Functions>
Readings(Functions...) -> Readings<Functions...>;

[[noreturn]] void RefuseReading(const TField& field, const melvark::ContractText& sentence) {
    throw EConvertError(Sentence(sentence, {field.AsString(), field.Name()}));
}

std::optional<std::int32_t> ToInt32(std::int64_t value) {
    if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max()) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(value);
}

/// A number with decimals is no integer: nothing is rounded behind the caller's back.
std::optional<std::int32_t> ToInt32(double value) {
    const bool isInRange =
        value >= std::numeric_limits<std::int32_t>::min() && value <= std::numeric_limits<std::int32_t>::max();
    if (!isInRange || std::trunc(value) != value) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(value);
}

std::optional<bool> ToBoolean(std::string_view text) {
    if (text == "1" || SameDbName(text, "true")) {
        return true;
    }
    if (text == "0" || SameDbName(text, "false")) {
        return false;
    }
    return std::nullopt;
}

} // namespace

TField::TField(AnsiString name, TDbValue value, const TFormatSettings& settings)
    : FName(std::move(name)), FValue(std::move(value)), FSettings(&settings) {}

bool TField::IsNull() const {
    return std::holds_alternative<std::monostate>(FValue);
}

AnsiString TField::AsString() const {
    return std::visit(Readings{[](std::monostate) { return AnsiString(); },
                               [](std::int64_t value) { return std::to_string(value); },
                               [this](double value) { return FloatToText(value, *FSettings); },
                               [](bool value) { return AnsiString(value ? "1" : "0"); },
                               [](const AnsiString& value) { return value; }},
                      FValue);
}

std::int32_t TField::AsInteger() const {
    using Result = std::optional<std::int32_t>;
    const Result result = std::visit(
        Readings{[](std::monostate) { return Result(0); }, [](std::int64_t value) { return ToInt32(value); },
                 [](double value) { return ToInt32(value); }, [](bool value) { return Result(value ? 1 : 0); },
                 [](const AnsiString& value) { return TextToInt(value); }},
        FValue);
    if (!result) {
        RefuseReading(*this, melvark::c_NotAnInteger);
    }
    return *result;
}

double TField::AsFloat() const {
    using Result = std::optional<double>;
    const Result result = std::visit(
        Readings{[](std::monostate) { return Result(0.0); },
                 [](std::int64_t value) { return Result(static_cast<double>(value)); },
                 [](double value) { return Result(value); }, [](bool value) { return Result(value ? 1.0 : 0.0); },
                 [this](const AnsiString& value) { return TextToFloat(value, *FSettings); }},
        FValue);
    if (!result) {
        RefuseReading(*this, melvark::c_NotANumber);
    }
    return *result;
}

bool TField::AsBoolean() const {
    using Result = std::optional<bool>;
    const Result result = std::visit(
        Readings{[](std::monostate) { return Result(false); }, [](std::int64_t value) { return Result(value != 0); },
                 [](double value) { return Result(value != 0.0); }, [](bool value) { return Result(value); },
                 [](const AnsiString& value) { return ToBoolean(value); }},
        FValue);
    if (!result) {
        RefuseReading(*this, melvark::c_NotABoolean);
    }
    return *result;
}

TDateTime TField::AsDateTime() const {
    if (IsNull()) {
        return TDateTime{};
    }
    const AnsiString* text = std::get_if<AnsiString>(&FValue);
    const std::optional<TDateTime> result = text != nullptr ? TextToDateTime(*text, *FSettings) : std::nullopt;
    if (!result) {
        RefuseReading(*this, melvark::c_NotADate);
    }
    return *result;
}

TDataSet::~TDataSet() = default;

TField TDataSet::FieldByName(std::string_view name) const {
    std::optional<TField> field = FindField(name);
    if (!field) {
        throw EDatabaseError(Sentence(melvark::c_NoFieldInRecord, {name}));
    }
    return *std::move(field);
}
