#pragma once

#include "host/HostServices.h"
#include "refhost/Images.h"
#include "refhost/TracingConnection.h"

#include <functional>
#include <string>

namespace refhost {

class ErrorDisplay;
class Languages;
class Trace;

/// Tells the local time.
using Clock = std::function<TDateTime()>;
TDateTime systemNow();

/// Letters and digits that stand for a database: the same for its one address, others for another one.
AnsiString databaseDigest(const std::string& address);

/// The services that this host gives to a module. It owns none of its parts: who starts the host makes them and
/// installs this with TScopedHost.
class HostApplication : public THostServices {
public:
    struct Parts {
        TConnection& connection;
        std::string databaseAddress;
        TFormatSettings settings;
        const Languages& languages;
        Trace& trace;
        ErrorDisplay& errors;
        Clock clock = systemNow;
    };

    explicit HostApplication(Parts parts);

    /// The database as the module sees it: every call is traced.
    TConnection& Connection() override { return tracingConnection_; }
    const TFormatSettings& FormatSettings() const override { return parts_.settings; }
    std::optional<AnsiString> Translation(std::string_view key, std::string_view builtIn) const override;
    std::string_view ImageData(std::string_view image, std::string_view group) const override;
    TDateTime Now() const override { return parts_.clock(); }
    /// Says nothing of a work that the user has stopped.
    void ShowError(std::exception_ptr error) noexcept override;
    AnsiString DatabaseDigest() const override;

private:
    Parts parts_;
    TracingConnection tracingConnection_;
    Images images_;
};

} // namespace refhost
