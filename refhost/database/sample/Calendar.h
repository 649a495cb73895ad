#pragma once

#include <chrono>
#include <string>

namespace refhost::sample {

using Day = std::chrono::sys_days;

/// "2027-02-01"
std::string dateText(Day day);
/// "2027-02-01 13:45:00"
std::string momentText(Day day, std::chrono::minutes timeOfDay);

int yearOf(Day day);

/// The day itself, or the Monday after a weekend.
Day workingDayFrom(Day day);
/// So many working days later.
Day afterWorkingDays(Day day, int count);

/// The first day of the half-year in which the day lies: the first of January or July.
Day halfYearOf(Day day);
Day nextHalfYear(Day firstDay);

/// Today by the clock and time zone of this computer.
Day localToday();

} // namespace refhost::sample
