#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace refhost {

/// How much later than by the world's clock it is in a zone at that moment; nothing when there is no such zone. A zone
/// is named as in the time zone database, in any case of letters: "UTC", or a region with a slash ("Europe/Prague").
/// Rules of other kinds ("CET", "GMT+2") are no names, as the engines read them differently.
std::optional<std::chrono::seconds> zoneOffset(const std::string& zone, std::chrono::sys_seconds moment);

} // namespace refhost
