#pragma once

#include "host/Connection.h"
#include "host/HostServices.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace benchmark {

/// Passes calls on. It names the source that a clerk would choose in a dialog, so that the editors open without one,
/// and keeps calls, so that a floor makes just the same ones.
class ClerkConnection : public TConnection {
public:
    explicit ClerkConnection(TConnection& target) : target_(target) {}

    /// A parameter of that name goes out with the identifier where the caller sets null.
    void chooses(std::string parameter, std::int64_t id) { choice_ = {std::move(parameter), id}; }
    /// From now on calls are kept.
    void keep() { keeps_ = true; }
    /// From now on calls are kept and not passed on; each of them succeeds and brings nothing.
    void rehearse() { keeps_ = isRehearsal_ = true; }
    /// What was kept since; nothing is kept any more, and calls are passed on again.
    std::vector<TProcedureCall> take();

    TProcedureInfo Describe(const AnsiString& procedure) override { return target_.Describe(procedure); }
    TCallResult Execute(const TProcedureCall& call) override;
    TResultTable Query(const AnsiString& sql) override { return target_.Query(sql); }

private:
    TConnection& target_;
    std::pair<std::string, std::int64_t> choice_;
    bool keeps_ = false;
    bool isRehearsal_ = false;
    std::vector<TProcedureCall> kept_;
};

/// A host that gives a connection and Czech formats, no translations and no images. An error that reaches its display
/// ends the program.
class BenchmarkHost : public THostServices {
public:
    explicit BenchmarkHost(TConnection& connection) : connection_(connection) {}

    TConnection& Connection() override { return connection_; }
    const TFormatSettings& FormatSettings() const override { return settings_; }
    std::optional<AnsiString> Translation(std::string_view, std::string_view) const override { return std::nullopt; }
    std::string_view ImageData(std::string_view, std::string_view) const override { return {}; }
    TDateTime Now() const override;
    void ShowError(std::exception_ptr error) noexcept override;
    AnsiString DatabaseDigest() const override { return "benchmark"; }

private:
    TConnection& connection_;
    TFormatSettings settings_ = TFormatSettings::Czech();
};

} // namespace benchmark
