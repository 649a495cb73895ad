#include "tests/database/RecalculationSweep.h"

#include "host/Exceptions.h"
#include "tests/database/RandomLines.h"
#include "tests/database/RecalculationCompany.h"
#include "tests/database/RecalculationLine.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace refhost {

namespace {

/// So many lines are sent before local VAT is switched and the staged rows are emptied.
constexpr int c_BlockLines = 50;

/// What a call brought: a result or the refusal.
struct Outcome {
    std::optional<TCallResult> Result;
    std::string Text;

    bool operator==(const Outcome& other) const { return Text == other.Text; }
};

Outcome outcomeOf(Database& database, const TProcedureCall& call) {
    try {
        TCallResult result = database.Execute(call);
        std::string text = call.Open ? lineText(result) : "accepted";
        return {std::move(result), std::move(text)};
    } catch (const EDatabaseError& refusal) {
        return {std::nullopt, refusal.Code() + " " + refusal.Message()};
    }
}

/// Whether a part of the line may come back as it was sent: it is not recalculated, has no truth, or nothing leads from
/// its truth to the price before the discount.
bool mayStayAsSent(const RecalculationInput& line) {
    const bool isPriceFocus = isPriceKey(line.Focus);
    if (!line.Recalculate || line.Discount == "100" || (isPriceFocus && priceText(line, line.Focus).empty())) {
        return true;
    }
    return !isPriceFocus && std::ranges::none_of(c_PriceRows, [&line](const PriceRow& row) {
        return !priceText(line, row.Keys.front()).empty() || !priceText(line, row.Keys.back()).empty();
    });
}

/// The name of the saving's parameter for a price's key: short for after, none for before the discount.
std::string savingParameter(std::string key) {
    constexpr std::string_view c_After = "SESLEVOU";
    constexpr std::string_view c_Before = "BEZSLEVY";
    if (key.ends_with(c_After)) {
        key.replace(key.size() - c_After.size(), c_After.size(), "SL");
    } else if (key.ends_with(c_Before)) {
        key.resize(key.size() - c_Before.size());
    }
    return "a_" + key;
}

/// The call that an editor makes to save the recalculated row.
TProcedureCall savingCall(const TResultTable& row) {
    TProcedureCall call{"MELVARKEDITORDodakInsertToTemp", {}, false};
    call.Params.push_back({"a_SKLADPOL", c_CompanyItem});
    call.Params.push_back({"a_SKLAD", c_CompanyWarehouse});
    for (std::size_t i = 0; i < row.Columns.size(); ++i) {
        TDbValue value = row.Rows[0][i];
        if (auto* text = std::get_if<AnsiString>(&value); text != nullptr && row.Columns[i] != "DPH") {
            std::ranges::replace(*text, ',', '.');
        }
        call.Params.push_back({savingParameter(row.Columns[i]), std::move(value)});
    }
    return call;
}

std::string difference(const TProcedureCall& sent, const Outcome& expected, const Outcome& got) {
    std::string text = "sent:\n";
    for (const TDbParam& parameter : sent.Params) {
        if (const auto* value = std::get_if<AnsiString>(&parameter.Value)) {
            text += parameter.Name + " = " + *value + "\n";
        }
    }
    return text + "expected:\n" + expected.Text + "\ngot:\n" + got.Text;
}

/// The outcome of the call on all databases, or what differs.
Outcome commonOutcome(std::span<Database* const> databases, const TProcedureCall& call, SweepResult& result) {
    Outcome first = outcomeOf(*databases.front(), call);
    for (Database* database : databases.subspan(1)) {
        if (const Outcome other = outcomeOf(*database, call); other != first) {
            result.Difference = difference(call, first, other);
        }
    }
    return first;
}

void sweepLine(std::span<Database* const> databases, const RecalculationInput& line, SweepResult& result) {
    const TProcedureCall call = recalculationCall(line);
    const Outcome recalculated = commonOutcome(databases, call, result);
    if (!result.Difference.empty()) {
        return;
    }
    if (!recalculated.Result) {
        ++result.Refused;
        return;
    }
    if (mayStayAsSent(line)) {
        ++result.AsSent;
        return;
    }
    ++result.Recalculated;
    const TProcedureCall saving = savingCall(recalculated.Result->Sets.front());
    for (Database* database : databases) {
        if (const Outcome saved = outcomeOf(*database, saving); !saved.Result) {
            result.Difference = difference(saving, {{}, "accepted"}, saved);
        }
    }
}

} // namespace

SweepResult sweepRecalculation(std::span<Database* const> databases, std::uint64_t seed, int lines) {
    RandomLines random(seed);
    SweepResult result;
    for (int line = 0; line < lines && result.Difference.empty(); ++line) {
        if (line % c_BlockLines == 0) {
            for (Database* database : databases) {
                switchLocalVat(*database, line / c_BlockLines % 2 == 1);
                database->Execute({"MELVARKEDITORResetTemp", {}, false});
            }
        }
        sweepLine(databases, random.next(), result);
    }
    return result;
}

} // namespace refhost
