#pragma once

#include "refhost/CompanyOptions.h"

#include <QString>

#include <set>
#include <string>
#include <vector>

/// All languages but the built-in one, which has no catalogue.
inline const std::vector<std::string> c_translatedLanguages(refhost::c_languages.begin() + 1,
                                                            refhost::c_languages.end());

/// One text of a catalogue's source file: its id ("KEY", or "KEY|built-in text" for entries that share a key), the
/// Czech text and the translation.
struct CatalogueEntry {
    std::string id;
    std::string source;
    std::string translation;
};

/// The entries of refhost/languages/<name>_<language>.ts in their order. A file that cannot be read fails the running
/// test.
std::vector<CatalogueEntry> readCatalogue(const std::string& name, const std::string& language);

/// The places for values in a text: %s, %d, %f, %m, %1 …, and %% for a per cent sign that survives formatting.
std::multiset<std::string> placeholders(const std::string& text);
