#pragma once

#include <optional>
#include <span>
#include <string>

namespace refhost {

/// The row of an editor as a call of the recalculation gets it, in Czech texts. A row of prices is "B A L S": without
/// VAT, the VAT, the local VAT, with VAT, "-" for an empty cell; an empty text is four empty cells.
struct RecalculationInput {
    std::string Focus = {};
    std::string Changed = {};
    std::string Rate = "21 %";
    std::string Discount = {};
    std::string Quantity = {};
    std::string UnitBefore = {};
    std::string UnitAfter = {};
    std::string TotalBefore = {};
    std::string TotalAfter = {};
    bool LocalVat = false; ///< Whether the company has local VAT on; its rate is 2 %.
    bool Recalculate = true;
};

/// What comes back. Discount and quantity are as sent unless given here; the rate always is.
struct RecalculationOutput {
    std::string UnitBefore = {};
    std::string UnitAfter = {};
    std::string TotalBefore = {};
    std::string TotalAfter = {};
    std::optional<std::string> Discount = {};
    std::optional<std::string> Quantity = {};
};

/// One row worked out by hand; the remark says how its figures come about. B, A, L and S are the prices as above, S and
/// B of a total those of the line.
struct RecalculationCase {
    const char* Name;
    const char* Remark;
    RecalculationInput Given;
    RecalculationOutput Expected;
};

std::span<const RecalculationCase> focusCases();
std::span<const RecalculationCase> truthCases();
std::span<const RecalculationCase> discountCases();
std::span<const RecalculationCase> amountCases();

/// A row that is refused.
struct RecalculationRefusal {
    const char* Name;
    RecalculationInput Given;
    const char* Code;
    const char* Sentence;
};

std::span<const RecalculationRefusal> refusalCases();

} // namespace refhost
