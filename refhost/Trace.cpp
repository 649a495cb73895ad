#include "refhost/Trace.h"

#include "host/Exceptions.h"
#include "refhost/HiddenValues.h"
#include "refhost/Json.h"
#include "refhost/database/RefusalTable.h"

#include <cerrno>
#include <cmath>
#include <fstream>
#include <iostream>
#include <system_error>

namespace refhost {

namespace {

/// Microseconds are as fine as a figure of one call means anything.
double toMicroseconds(double milliseconds) {
    return std::round(milliseconds * 1000) / 1000;
}

/// An error without a code is told where nothing of its sentence may stand, too.
TDbValue errorOf(const TracedOutcome& outcome, Values values) {
    constexpr const char* c_withoutCode = "?";
    if (!outcome.error) {
        return {};
    }
    if (values == Values::Shown) {
        return *outcome.error;
    }
    return outcome.code.empty() ? AnsiString(c_withoutCode) : outcome.code;
}

void addCall(JsonObject& line, const std::string& name, bool open, const std::string& params,
             const TracedOutcome& outcome, Values values) {
    line.add("call", name)
        .add("open", open)
        .addJson("params", params)
        .add("rows", static_cast<std::int64_t>(outcome.rows))
        .add("error", errorOf(outcome, values));
    if (outcome.row) {
        line.add("row", std::int64_t{*outcome.row});
    }
    if (!outcome.isAnswered) {
        line.add("answered", false);
    }
    line.add("ms", toMicroseconds(outcome.milliseconds));
}

std::string paramsOf(const TProcedureCall& call, Values values) {
    std::string params = "[";
    for (const TDbParam& param : call.Params) {
        if (params.size() > 1) {
            params += ',';
        }
        const std::string name = jsonString(param.Name);
        params += values == Values::Shown ? "[" + name + "," + jsonValue(param.Value) + "]" : name;
    }
    return params + "]";
}

TDbValue textOf(const std::string& text, Values values) {
    return values == Values::Shown ? TDbValue(text) : TDbValue();
}

TDbValue pickOf(const std::optional<TLookupPick>& picked, Values values) {
    if (values == Values::Hidden) {
        return picked.has_value();
    }
    return picked ? TDbValue(picked->Key) : TDbValue();
}

/// Writes to the stream until it takes no more.
TraceRecord streamRecord(std::unique_ptr<std::ostream> output) {
    return {.write = [output = std::shared_ptr<std::ostream>(std::move(output))](const std::string& line) mutable {
        if (!output) {
            return;
        }
        *output << line << '\n' << std::flush;
        if (output->good()) {
            return;
        }
        // Work goes on without a trace: failing here would undo what the clerk has just done.
        std::cerr << "The trace cannot be written any further.\n";
        output.reset();
    }};
}

} // namespace

Trace::Trace(std::unique_ptr<std::ostream> output) {
    if (output) {
        addRecord(streamRecord(std::move(output)));
    }
}

void Trace::procedure(const TProcedureCall& call, const TracedOutcome& outcome) {
    writeLine([&](JsonObject& line, Values values) {
        addCall(line, call.Name, call.Open, paramsOf(call, values), outcome, values);
    });
}

void Trace::query(const std::string& sql, const TracedOutcome& outcome) {
    writeLine([&](JsonObject& line, Values values) {
        addCall(line, values == Values::Shown ? sql : hideValues(sql), true, "[]", outcome, values);
    });
}

void Trace::lookup(const std::string& form, const std::string& displayColumn, const std::string& keyColumn,
                   const std::string& condition, const std::optional<TLookupPick>& picked) {
    writeLine([&](JsonObject& line, Values values) {
        line.add("lookup", form)
            .add("display", displayColumn)
            .add("key", keyColumn)
            .add("condition", values == Values::Shown ? condition : hideValues(condition))
            .add("picked", pickOf(picked, values));
    });
}

void Trace::message(const std::string& text, const std::string& style) {
    writeLine([&](JsonObject& line, Values values) { line.add("message", textOf(text, values)).add("style", style); });
}

void Trace::box(const std::string& text, int flags, int result) {
    writeLine([&](JsonObject& line, Values values) {
        line.add("box", textOf(text, values)).add("flags", flags).add("result", result);
    });
}

void Trace::error(const std::string& text, const std::string& code) {
    writeLine(
        [&](JsonObject& line, Values values) { line.add("error", errorOf({.error = text, .code = code}, values)); });
}

void Trace::writeLine(const std::function<void(JsonObject& line, Values values)>& fill) const {
    for (const TraceRecord& record : records_) {
        JsonObject line;
        if (record.stamp) {
            record.stamp(line);
        }
        fill(line, record.values);
        record.write(line.text());
    }
}

std::unique_ptr<std::ostream> openTraceFile(const std::string& path) {
    auto file = std::make_unique<std::ofstream>(path, std::ios::app | std::ios::binary);
    if (!file->is_open()) {
        throw refusal("ML935", {path}, std::generic_category().message(errno), TDatabaseCause::Failure);
    }
    return file;
}

} // namespace refhost
