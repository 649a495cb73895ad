#include "refhost/Trace.h"

#include "host/Exceptions.h"
#include "refhost/Json.h"

#include <cmath>
#include <fstream>
#include <iostream>

namespace refhost {

namespace {

/// Microseconds are as fine as a figure of one call means anything.
double toMicroseconds(double milliseconds) {
    return std::round(milliseconds * 1000) / 1000;
}

std::string callLine(const std::string& name, bool open, const std::string& params, const TracedOutcome& outcome) {
    JsonObject line;
    line.add("call", name)
        .add("open", open)
        .addJson("params", params)
        .add("rows", static_cast<std::int64_t>(outcome.rows))
        .add("error", outcome.error ? TDbValue(*outcome.error) : TDbValue());
    if (outcome.row) {
        line.add("row", std::int64_t{*outcome.row});
    }
    if (!outcome.isAnswered) {
        line.add("answered", false);
    }
    return line.add("ms", toMicroseconds(outcome.milliseconds)).text();
}

} // namespace

Trace::Trace(std::unique_ptr<std::ostream> output) : output_(std::move(output)) {}

void Trace::procedure(const TProcedureCall& call, const TracedOutcome& outcome) {
    std::string params = "[";
    for (const TDbParam& param : call.Params) {
        if (params.size() > 1) {
            params += ',';
        }
        params += "[" + jsonString(param.Name) + "," + jsonValue(param.Value) + "]";
    }
    writeLine(callLine(call.Name, call.Open, params + "]", outcome));
}

void Trace::query(const std::string& sql, const TracedOutcome& outcome) {
    writeLine(callLine(sql, true, "[]", outcome));
}

void Trace::lookup(const std::string& form, const std::string& displayColumn, const std::string& keyColumn,
                   const std::string& condition, const std::optional<TLookupPick>& picked) {
    writeLine(JsonObject()
                  .add("lookup", form)
                  .add("display", displayColumn)
                  .add("key", keyColumn)
                  .add("condition", condition)
                  .add("picked", picked ? TDbValue(picked->Key) : TDbValue())
                  .text());
}

void Trace::message(const std::string& text, const std::string& style) {
    writeLine(JsonObject().add("message", text).add("style", style).text());
}

void Trace::box(const std::string& text, int flags, int result) {
    writeLine(JsonObject().add("box", text).add("flags", flags).add("result", result).text());
}

void Trace::error(const std::string& text) {
    writeLine(JsonObject().add("error", text).text());
}

void Trace::writeLine(const std::string& line) {
    if (!output_) {
        return;
    }
    *output_ << line << '\n' << std::flush;
    if (output_->good()) {
        return;
    }
    // Work goes on without a trace: failing here would undo what the clerk has just done.
    std::cerr << "The trace cannot be written any further.\n";
    output_.reset();
}

std::unique_ptr<std::ostream> openTraceFile(const std::string& path) {
    auto file = std::make_unique<std::ofstream>(path, std::ios::app | std::ios::binary);
    if (!file->is_open()) {
        throw EInOutError("Soubor pro záznam volání „" + path + "“ nelze otevřít k zápisu.");
    }
    return file;
}

} // namespace refhost
