#pragma once

#include "host/Connection.h"
#include "host/FormatSettings.h"
#include "refhost/CommandLine.h"

#include <istream>
#include <ostream>

namespace refhost {

class Languages;

/// What the commands that only read or call the database work with.
struct CommandContext {
    TConnection& connection;
    const TFormatSettings& settings;
    const Languages& languages;
    std::istream& input;
    std::ostream& output;
};

/// Runs --call, --call --batch, --query, --documents or --show and prints JSON lines: column names in upper case,
/// values as the texts that a field shows, or null. Throws EDatabaseError for a refusal, EHostError for an unknown
/// screen or document; a refused call of a batch is printed and the batch goes on.
void runDataCommand(const CommandLine& commandLine, const CommandContext& context);

} // namespace refhost
