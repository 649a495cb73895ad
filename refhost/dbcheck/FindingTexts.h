#pragma once

#include "refhost/HostTexts.h"
#include "refhost/dbcheck/Finding.h"

#include <span>

namespace refhost {

class Languages;

/// What a kind of finding is called by programs, and the sentence for people: %1 is the object, %2 the member, %3 what
/// is expected, %4 what was found.
struct FindingText {
    FindingKind kind;
    std::string_view code;
    HostText sentence;
};

std::span<const FindingText> findingTexts();
const FindingText& findingText(FindingKind kind);

/// What was found, in the language: a refusal's own sentence when the database spoke.
std::string foundText(const Finding& finding, const Languages& languages);

/// The whole sentence.
std::string findingSentence(const Finding& finding, const Languages& languages);

} // namespace refhost
