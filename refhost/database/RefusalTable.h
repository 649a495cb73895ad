#pragma once

#include "host/Exceptions.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace refhost {

/// A row of refusals.txt: its key (the code, and a word behind a slash for a further form of the same code) and its
/// sentence with the places {1} to {9}.
struct RefusalRow {
    std::string_view Key;
    std::string_view Sentence;
};

/// The whole table, built into the program. The server has the same one as its function refusal_sentence.
std::span<const RefusalRow> refusalRows();

/// The refusal of the key, its places filled with what the sentence names; nobody cuts it short here. The cause tells a
/// rule from a failure of the database itself. Throws std::logic_error for a key that the table does not have or a
/// place that is left empty: a mistake of ours.
EDatabaseError refusal(std::string_view key, const std::vector<std::string>& named = {}, std::string details = {},
                       TDatabaseCause cause = TDatabaseCause::Refusal);

} // namespace refhost
