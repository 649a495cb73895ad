#include "refhost/HostApplication.h"

#include "refhost/ErrorDisplay.h"
#include "refhost/Languages.h"
#include "refhost/Trace.h"
#include "refhost/database/StopSignal.h"

#include <QCryptographicHash>
#include <QDateTime>

#include <cstdio>

namespace refhost {

namespace {

bool wasStopped(const std::exception_ptr& error) {
    try {
        std::rethrow_exception(error);
    } catch (const EStopped&) {
        return true;
    } catch (...) {
        return false;
    }
}

} // namespace

TDateTime systemNow() {
    const QDateTime now = QDateTime::currentDateTime();
    return TDateTime(std::chrono::seconds(now.toSecsSinceEpoch() + now.offsetFromUtc()));
}

HostApplication::HostApplication(Parts parts)
    : parts_(std::move(parts)), tracingConnection_(parts_.connection, parts_.trace) {}

std::optional<AnsiString> HostApplication::Translation(std::string_view key, std::string_view builtIn) const {
    return parts_.languages.translation(key, builtIn);
}

std::string_view HostApplication::ImageData(std::string_view image, std::string_view group) const {
    return images_.data(image, group);
}

void HostApplication::ShowError(std::exception_ptr error) noexcept {
    try {
        if (wasStopped(error)) {
            return; // by the user himself; the trace of the call tells it
        }
        const ErrorReport report = describeError(error, parts_.languages);
        parts_.trace.error(report.sentence, report.code);
        parts_.errors.show(report);
    } catch (...) {
        // Without memory or a display there is only one place left to say it.
        std::fputs("An error could not be shown.\n", stderr);
    }
}

AnsiString HostApplication::DatabaseDigest() const {
    return databaseDigest(parts_.databaseAddress);
}

// Half of the digest's characters are enough that no two addresses meet.
AnsiString databaseDigest(const std::string& address) {
    constexpr qsizetype c_Characters = 32;
    const QByteArray text = QByteArray::fromStdString(address);
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex().first(c_Characters).toStdString();
}

} // namespace refhost
