#pragma once

#include "refhost/dbcheck/Exercise.h"
#include "refhost/dbcheck/Finding.h"

#include <string>

namespace refhost {

class Languages;

/// What a check has come to.
struct CheckReport {
    std::string database; ///< The address as it was given.
    Findings findings;
    bool isExercised = false;
    std::vector<Written> written;
    bool isComplete = true; ///< False when the check broke off, so that nobody knows whether the database fits.
};

/// A line a finding, a line for each thing that a trial wrote, and at the end how many findings there are.
std::string reportText(const CheckReport& report, const Languages& languages);

/// The same as one JSON object, which docs/database.md describes.
std::string reportJson(const CheckReport& report, const Languages& languages);

} // namespace refhost
