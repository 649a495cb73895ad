#include "refhost/ErrorDisplay.h"

#include "host/Exceptions.h"
#include "refhost/Languages.h"
#include "refhost/Refusals.h"
#include "refhost/database/StopSignal.h"

#include <ostream>

namespace refhost {

namespace {

void addLine(std::string& lines, const std::string& line) {
    if (line.empty()) {
        return;
    }
    if (!lines.empty()) {
        lines += '\n';
    }
    lines += line;
}

std::string fillIn(const Languages& languages, const HostText& text, const std::string& value) {
    return languages.label(text).arg(QString::fromStdString(value)).toStdString();
}

ErrorReport describeDatabaseError(const EDatabaseError& error, const Languages& languages) {
    ErrorReport report{.sentence = error.Message(), .details = {}, .code = error.Code()};
    if (!error.Code().empty()) {
        if (const auto translated = translateRefusal(error, languages)) {
            report.sentence = *translated;
            addLine(report.details, fillIn(languages, texts::errorOriginal, error.Message()));
        }
        addLine(report.details, fillIn(languages, texts::errorCode, error.Code()));
    }
    addLine(report.details, error.Details());
    if (error.Row()) {
        report.sentence = languages.label(texts::errorLine)
                              .arg(QString::number(*error.Row() + 1), QString::fromStdString(report.sentence))
                              .toStdString();
    }
    return report;
}

} // namespace

ErrorReport describeError(const std::exception_ptr& error, const Languages& languages) {
    try {
        std::rethrow_exception(error);
    } catch (const EStopped&) {
        return {.sentence = languages.text(texts::workStopped), .details = {}};
    } catch (const EDatabaseError& databaseError) {
        return describeDatabaseError(databaseError, languages);
    } catch (const Exception& exception) {
        return {.sentence = exception.Message(), .details = {}};
    } catch (const std::exception& exception) {
        return {.sentence = languages.text(texts::errorUnexpected),
                .details = fillIn(languages, texts::errorKind, exception.what())};
    } catch (...) {
        return {.sentence = languages.text(texts::errorUnexpected), .details = {}};
    }
}

ErrorDisplay::~ErrorDisplay() = default;

StreamErrorDisplay::StreamErrorDisplay(std::ostream& stream) : stream_(stream) {}

void StreamErrorDisplay::show(const ErrorReport& report) {
    stream_ << report.sentence << '\n';
    if (!report.details.empty()) {
        stream_ << report.details << '\n';
    }
    stream_.flush();
}

} // namespace refhost
