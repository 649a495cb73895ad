#include "refhost/RunRecords.h"

#include "refhost/CommandLine.h"
#include "refhost/ErrorDisplay.h"
#include "refhost/Json.h"

#include <iostream>

namespace refhost {

namespace {

JsonObject stampedLine() {
    JsonObject line;
    stampLogLine(line);
    return line;
}

} // namespace

RunRecords::RunRecords(const CommandLine& commandLine)
    : trace_(commandLine.traceFile.empty() ? nullptr : openTraceFile(commandLine.traceFile)) {
    trace_.addRecord({.write = [this](const std::string& line) { recentCalls_.add(line); },
                      .values = Values::Hidden,
                      .stamp = stampLogLine});
}

void RunRecords::startLog(const LogChoice& choice) {
    log_.emplace(choice.file, LogLimits{}, std::cerr);
    log_->write(stampedLine().add("started", programVersion()).add("values", choice.values == Values::Shown).text());
    const TraceRecord logRecord{.write = [this](const std::string& line) { log_->write(line); },
                                .values = choice.values,
                                .stamp = stampLogLine};
    trace_.addRecord(logRecord);
    commands_.addRecord(logRecord);
}

void RunRecords::failed(const ErrorReport& report) {
    const std::string line = stampedLine().add("failed", report.code).text();
    recentCalls_.add(line);
    if (log_) {
        log_->write(line);
    }
}

} // namespace refhost
