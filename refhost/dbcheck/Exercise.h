#pragma once

#include "host/FormatSettings.h"
#include "refhost/dbcheck/ExercisedSession.h"

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string_view>

namespace refhost {

/// A kind of document whose procedures are tried, by the names that it goes by.
struct ExerciseKind {
    std::string_view Screen;
    const char* Prefix;        ///< Of its procedures: "Dodak".
    const char* DocumentParam; ///< Of the document in them.
    const char* LinesView;
    const char* Fill;              ///< The fill from a document of the same kind,
    const char* FillDocumentParam; ///< its parameter of the document that is filled
    const char* FillSourceParam;   ///< and that of the source; null takes the template's lines.
    bool IsRecalculated;           ///< Whether its lines' prices are.
};

/// An id that no document has.
inline constexpr std::int64_t c_NoDocument = std::numeric_limits<std::int32_t>::max();

/// Nothing when there is no such screen.
const ExerciseKind* exerciseKind(std::string_view screen);

/// What an exercise has left in the database.
struct Written {
    enum class What { Lines, Identities, Setting, Placement };

    What Kind;
    std::string Object; ///< The screen and document, the setting's name, the kind of editor.
    int Count = 1;      ///< Lines or identities that were added.

    bool operator==(const Written&) const = default;
};

struct ExerciseOutcome {
    Findings Found;
    std::vector<Written> Left;
};

/// What the parts of an exercise work with: two sessions of one user, for what one of them has staged is none of the
/// other's, and what has come of it so far.
struct ExerciseContext {
    const ExerciseKind& Kind;
    std::int32_t Document;
    const TFormatSettings& Settings;
    ExercisedSession& First;
    ExercisedSession& Second;
    ExerciseOutcome& Outcome;

    /// The screen and the document, as the list of what was written names them.
    std::string document() const;
    /// Notes a finding about a procedure of this kind of document, or of all when the name is whole.
    void note(FindingKind kind, const std::string& procedure, std::string member = {}, std::string expected = {},
              std::string found = {}) const;
    /// The same when what was found is not what is expected.
    void expect(FindingKind kind, const std::string& procedure, std::string member, std::string expected,
                std::string found) const;
};

/// Tries what the procedures do with an open document: opens it, saves rows in all the ways that go wrong in a database
/// of one's own, keeps and forgets a setting and a placement, recalculates a line. Lines that were saved stay.
/// `outcome` has what came of it, also after an exception: EDatabaseError when the document is refused or the database
/// cannot be reached, NothingToSave.
void exercise(const DatabaseContract& contract, const ExerciseKind& kind, std::int32_t document,
              const TFormatSettings& settings, Database& first, Database& second, ExerciseOutcome& outcome);

/// Neither the document nor its template has a line that could be saved once more.
class NothingToSave : public std::runtime_error {
public:
    NothingToSave() : std::runtime_error("there is no line to save once more") {}
};

} // namespace refhost
