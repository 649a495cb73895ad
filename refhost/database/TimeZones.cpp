#include "refhost/database/TimeZones.h"

#include <map>
#include <memory>
#include <stdexcept>
#include <unicode/strenum.h>
#include <unicode/timezone.h>

namespace refhost {

namespace {

/// Zone names are plain ASCII.
std::string lowered(std::string name) {
    for (char& c : name) {
        c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return name;
}

bool isRegion(const std::string& name) {
    return name == "UTC" || (name.find('/') != std::string::npos && !name.starts_with("SystemV/"));
}

/// The library's names by their small letters: it knows them in one spelling only.
std::map<std::string, icu::UnicodeString> readNames() {
    UErrorCode error = U_ZERO_ERROR;
    const std::unique_ptr<icu::StringEnumeration> all(
        icu::TimeZone::createTimeZoneIDEnumeration(UCAL_ZONE_TYPE_ANY, nullptr, nullptr, error));
    std::map<std::string, icu::UnicodeString> names;
    while (const icu::UnicodeString* next = U_SUCCESS(error) ? all->snext(error) : nullptr) {
        std::string name;
        if (isRegion(next->toUTF8String(name))) {
            names.emplace(lowered(name), *next);
        }
    }
    if (U_FAILURE(error)) {
        throw std::runtime_error(std::string("the time zones cannot be read: ") + u_errorName(error));
    }
    return names;
}

} // namespace

std::optional<std::chrono::seconds> zoneOffset(const std::string& zone, std::chrono::sys_seconds moment) {
    static const std::map<std::string, icu::UnicodeString> names = readNames();
    const auto name = names.find(lowered(zone));
    if (name == names.end()) {
        return std::nullopt;
    }
    const std::unique_ptr<icu::TimeZone> found(icu::TimeZone::createTimeZone(name->second));
    std::int32_t offset = 0;
    std::int32_t summer = 0;
    UErrorCode error = U_ZERO_ERROR;
    constexpr double c_Milliseconds = 1000;
    found->getOffset(static_cast<double>(moment.time_since_epoch().count()) * c_Milliseconds, false, offset, summer,
                     error);
    return std::chrono::floor<std::chrono::seconds>(std::chrono::milliseconds(offset + summer));
}

} // namespace refhost
