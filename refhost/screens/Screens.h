#pragma once

#include "host/Connection.h"
#include "refhost/HostTexts.h"

#include <Qt>

#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>

namespace refhost {

class Languages;

/// What one document screen is: everything in which the three differ.
struct ScreenDefinition {
    std::string_view code; ///< The word by which library items and the command line know it.
    HostText title;
    std::string_view documentsView;
    std::string_view linesView;
    std::string_view createdView; ///< The documents that this session's saves have made; empty where none are made.
    std::string_view sortColumn;  ///< The order in which the documents first stand.
    Qt::SortOrder sortOrder;
};

/// All document screens, in the order of their tabs.
std::span<const ScreenDefinition> screenDefinitions();

/// The screen of that code. Throws EHostError naming it when there is none.
const ScreenDefinition& findScreen(std::string_view code, const Languages& languages);

/// The screen that the parameters of a library item begin with; the delivery notes for a word that is no screen, so
/// that the item itself can say what it thinks of the word.
const ScreenDefinition& screenOfParams(std::string_view params);

/// All documents of the screen, by number of record.
TResultTable readDocuments(TConnection& connection, const ScreenDefinition& screen);

/// The document of that record number; no row when the screen has none.
TResultTable readDocument(TConnection& connection, const ScreenDefinition& screen, std::int32_t document);

/// The record numbers of the documents that this session's saves have made on the screen; nothing when the database
/// does not tell, as one that somebody else has furnished may not.
std::optional<std::set<std::int64_t>> readCreated(TConnection& connection, const ScreenDefinition& screen);

/// The stored lines of the document in their order.
TResultTable readLines(TConnection& connection, const ScreenDefinition& screen, std::int32_t document);

} // namespace refhost
