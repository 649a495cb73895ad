#pragma once

#include "host/Connection.h"
#include "host/Exceptions.h"
#include "host/HostServices.h"

#include <map>
#include <utility>
#include <vector>

/// A connection with prepared answers, which keeps the calls it got.
class FakeConnection : public TConnection {
public:
    TProcedureInfo Describe(const AnsiString& procedure) override {
        ++describeCount;
        const auto found = procedures.find(procedure);
        if (found == procedures.end()) {
            throw EDatabaseError("Procedura " + procedure + " neexistuje.");
        }
        return found->second;
    }

    TCallResult Execute(const TProcedureCall& call) override {
        calls.push_back(call);
        if (fails) {
            throw EDatabaseError("Doklad je uzavřen.", "MV001");
        }
        return answer;
    }

    TResultTable Query(const AnsiString& sql) override {
        queries.push_back(sql);
        if (fails) {
            throw EDatabaseError("Spojení je přerušeno.");
        }
        return queryAnswer;
    }

    std::map<AnsiString, TProcedureInfo> procedures;
    TCallResult answer;
    TResultTable queryAnswer;
    bool fails = false;

    int describeCount = 0;
    std::vector<TProcedureCall> calls;
    std::vector<AnsiString> queries;
};

/// The few services that the contract library itself asks for.
class FakeHost : public THostServices {
public:
    TConnection& Connection() override { return connection; }
    const TFormatSettings& FormatSettings() const override { return settings; }

    std::optional<AnsiString> Translation(std::string_view key, std::string_view builtIn) const override {
        const auto found = translations.find({AnsiString(key), AnsiString(builtIn)});
        return found == translations.end() ? std::nullopt : std::optional(found->second);
    }

    std::string_view ImageData(std::string_view, std::string_view) const override { return {}; }
    TDateTime Now() const override { return TDateTime{}; }
    void ShowError(std::exception_ptr) noexcept override {}
    AnsiString DatabaseDigest() const override { return {}; }

    FakeConnection connection;
    TFormatSettings settings = TFormatSettings::Czech();
    /// By key and built-in text.
    std::map<std::pair<AnsiString, AnsiString>, AnsiString> translations;
};

/// What the exception of the call says, or a remark that there was none of the type.
template <class Error, class Call>
AnsiString messageOf(Call&& call) {
    try {
        std::forward<Call>(call)();
    } catch (const Error& error) {
        return error.Message();
    }
    return "(nothing was thrown)";
}
