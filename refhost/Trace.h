#pragma once

#include "host/Connection.h"
#include "host/LibraryManager.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

namespace refhost {

/// How a traced call ended.
struct TracedOutcome {
    std::size_t rows = 0;                            ///< Rows of all its result sets together.
    std::optional<std::string> error = std::nullopt; ///< The sentence of the refusal or failure.
    std::optional<int> row = std::nullopt;           ///< The line of the save that the error names.
    bool isAnswered = true;                          ///< Else it was only sent, and a later call tells its error.
    double milliseconds = 0;
};

/// The record of everything that the module asked the host for: one JSON line per service call, in order, written
/// through at once, so that it is complete up to a crash. Calls that the host makes for itself are not recorded.
class Trace {
public:
    /// `output` is where the lines go; none for a trace that records nothing.
    explicit Trace(std::unique_ptr<std::ostream> output = nullptr);

    void procedure(const TProcedureCall& call, const TracedOutcome& outcome);
    void query(const std::string& sql, const TracedOutcome& outcome);
    /// `picked` is the key of the picked row; nothing when the list was left without a choice.
    void lookup(const std::string& form, const std::string& displayColumn, const std::string& keyColumn,
                const std::string& condition, const std::optional<TLookupPick>& picked);
    void message(const std::string& text, const std::string& style);
    void box(const std::string& text, int flags, int result);
    void error(const std::string& text);

private:
    void writeLine(const std::string& line);

    std::unique_ptr<std::ostream> output_;
};

/// Opens the file for appending. Throws EInOutError naming the file when that fails.
std::unique_ptr<std::ostream> openTraceFile(const std::string& path);

} // namespace refhost
