#pragma once

#include "host/Connection.h"
#include "host/LibraryManager.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace refhost {

class JsonObject;

/// How a traced call ended.
struct TracedOutcome {
    std::size_t rows = 0;                            ///< Rows of all its result sets together.
    std::optional<std::string> error = std::nullopt; ///< The sentence of the refusal or failure.
    std::string code = {};                           ///< The error's code; empty when it has none.
    std::optional<int> row = std::nullopt;           ///< The line of the save that the error names.
    bool isAnswered = true;                          ///< Else it was only sent, and a later call tells its error.
    double milliseconds = 0;
};

/// Whether a record tells what was sent, picked and shown, or only that it was: names instead of parameters, codes
/// instead of sentences, "?" for what stands in a query.
enum class Values { Shown, Hidden };

/// Who writes the lines of a trace down, and how he wants them.
struct TraceRecord {
    std::function<void(const std::string& line)> write;
    Values values = Values::Shown;
    std::function<void(JsonObject& line)> stamp = nullptr; ///< Writes the first members of each line, such as the time.
};

/// The record of everything that the module asked the host for: one JSON line per service call, in order, written
/// through at once, so that it is complete up to a crash. Calls that the host makes for itself are not recorded.
class Trace {
public:
    /// `output` gets the lines with all values; none for a trace that records nothing before `addRecord`.
    explicit Trace(std::unique_ptr<std::ostream> output = nullptr);

    void addRecord(TraceRecord record) { records_.push_back(std::move(record)); }

    void procedure(const TProcedureCall& call, const TracedOutcome& outcome);
    void query(const std::string& sql, const TracedOutcome& outcome);
    /// `picked` is the key of the picked row; nothing when the list was left without a choice.
    void lookup(const std::string& form, const std::string& displayColumn, const std::string& keyColumn,
                const std::string& condition, const std::optional<TLookupPick>& picked);
    void message(const std::string& text, const std::string& style);
    void box(const std::string& text, int flags, int result);
    /// What the error display showed; `code` is empty for an error that has none.
    void error(const std::string& text, const std::string& code);

private:
    void writeLine(const std::function<void(JsonObject& line, Values values)>& fill) const;

    std::vector<TraceRecord> records_;
};

/// Opens the file for appending. Throws the refusal ML935, which names the file, when that fails.
std::unique_ptr<std::ostream> openTraceFile(const std::string& path);

} // namespace refhost
