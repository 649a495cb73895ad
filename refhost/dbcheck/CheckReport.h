#pragma once

#include "refhost/dbcheck/Finding.h"

#include <string>

namespace refhost {

class Languages;

/// What a check has come to.
struct CheckReport {
    std::string database; ///< The address as it was given.
    Findings findings;
};

/// A line a finding, and at the end how many there are.
std::string reportText(const CheckReport& report, const Languages& languages);

/// The same as one JSON object, which docs/database.md describes.
std::string reportJson(const CheckReport& report, const Languages& languages);

} // namespace refhost
