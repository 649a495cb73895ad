#pragma once

#include "refhost/Languages.h"
#include "tests/support/RecordingHost.h"

#include <set>
#include <string>
#include <utility>

/// A text that the module asked the host for: its key and the built-in Czech text.
using AskedText = std::pair<std::string, std::string>;

/// A recording host that speaks a language of the real catalogues and keeps every text that it was asked for.
class TranslatingHost : public RecordingHost {
public:
    explicit TranslatingHost(const std::string& language);

    /// The catalogues that answer.
    const refhost::Languages& languages() const { return languages_; }
    const std::set<AskedText>& asked() const { return asked_; }
    void note(std::string key, std::string builtIn) const;

    std::optional<AnsiString> Translation(std::string_view key, std::string_view builtIn) const override;

private:
    refhost::Languages languages_;
    mutable std::set<AskedText> asked_;
};

/// A recording library manager that puts a form's texts into the language of the host, as the real one does.
class TranslatingLibraryManager : public RecordingLibraryManager {
public:
    explicit TranslatingLibraryManager(const TranslatingHost& host) : host_(host) {}

    void LocalizeForm(TLocalizableForm& form, const AnsiString& section) override;

private:
    const TranslatingHost& host_;
};
