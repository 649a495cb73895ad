#include "refhost/database/sample/Calendar.h"

#include <ctime>

namespace refhost::sample {

namespace {

using std::chrono::days;
using std::chrono::year_month_day;

std::string twoDigits(unsigned number) {
    return (number < 10 ? "0" : "") + std::to_string(number);
}

} // namespace

std::string dateText(Day day) {
    const year_month_day date(day);
    return std::to_string(static_cast<int>(date.year())) + "-" + twoDigits(static_cast<unsigned>(date.month())) + "-" +
           twoDigits(static_cast<unsigned>(date.day()));
}

std::string momentText(Day day, std::chrono::minutes timeOfDay) {
    const auto minutes = static_cast<unsigned>(timeOfDay.count());
    return dateText(day) + " " + twoDigits(minutes / 60) + ":" + twoDigits(minutes % 60) + ":00";
}

int yearOf(Day day) {
    return static_cast<int>(year_month_day(day).year());
}

Day workingDayFrom(Day day) {
    const std::chrono::weekday weekday(day);
    if (weekday == std::chrono::Saturday) {
        return day + days(2);
    }
    return weekday == std::chrono::Sunday ? day + days(1) : day;
}

Day afterWorkingDays(Day day, int count) {
    for (int i = 0; i < count; ++i) {
        day = workingDayFrom(day + days(1));
    }
    return day;
}

Day halfYearOf(Day day) {
    const year_month_day date(day);
    const auto month = date.month() < std::chrono::July ? std::chrono::January : std::chrono::July;
    return Day(date.year() / month / 1);
}

Day nextHalfYear(Day firstDay) {
    return Day(year_month_day(firstDay) + std::chrono::months(6));
}

Day localToday() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return Day(std::chrono::year(local.tm_year + 1900) / (local.tm_mon + 1) / local.tm_mday);
}

} // namespace refhost::sample
