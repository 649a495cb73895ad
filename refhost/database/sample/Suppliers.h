#pragma once

#include "refhost/database/sample/Calendar.h"

#include <span>
#include <string>
#include <string_view>

namespace refhost::sample {

/// How a supplier numbers the delivery notes that it sends.
enum class NumberStyle { LettersAndYear, YearSlash, TenDigits, Running, SlashYear, Dashed };

/// A supplier; its identifier is its place in suppliers() + 1.
struct Supplier {
    std::string_view Name;
    std::string_view Town;
    std::string_view Assortment; ///< The second-level groups that it sells, divided by '|'.
    NumberStyle Numbers = NumberStyle::Running;
    int PricePercent = 100;    ///< How dear it is, against the usual price.
    int OrderedEveryDays = 28; ///< How often the company orders there.
    int WorkingDaysToDeliver = 2;
};

std::span<const Supplier> suppliers();

/// Whether the supplier sells goods of the second-level group.
bool sells(const Supplier& supplier, std::string_view group2);

/// The number of a delivery note: the `running`-th that the supplier wrote, in the year of `day`.
std::string noteNumber(NumberStyle style, int running, Day day);

} // namespace refhost::sample
