#pragma once

#include <QDateTime>
#include <QLibrary>

#include <chrono>
#include <exception>
#include <host/DataSet.h>
#include <host/Exceptions.h>
#include <host/HostServices.h>
#include <host/LibraryItem.h>
#include <host/Package.h>
#include <host/widgets/MessageBox.h>
#include <memory>

/// No language, no image: the module's own texts and plain buttons are shown.
class MinimalHost final : public THostServices {
public:
    explicit MinimalHost(TConnection& database) : FDatabase(database) {}

    TConnection& Connection() override { return FDatabase; }
    const TFormatSettings& FormatSettings() const override { return FSettings; }
    std::optional<AnsiString> Translation(std::string_view, std::string_view) const override { return std::nullopt; }
    std::string_view ImageData(std::string_view, std::string_view) const override { return {}; }
    AnsiString DatabaseDigest() const override { return "example"; }

    TDateTime Now() const override {
        const QDateTime now = QDateTime::currentDateTime();
        return TDateTime(std::chrono::seconds(now.toSecsSinceEpoch() + now.offsetFromUtc()));
    }

    void ShowError(std::exception_ptr error) noexcept override {
        try {
            std::rethrow_exception(error);
        } catch (const std::exception& known) {
            ApplicationMessageBox(known.what(), "Host", c_MessageBoxError);
        }
    }

private:
    TConnection& FDatabase;
    TFormatSettings FSettings = TFormatSettings::English();
};

/// Opens no lists: filling from the template asks for none.
class MinimalManager final : public TLibraryManager {
public:
    int MessageBox(const AnsiString& text, int flags) override { return ApplicationMessageBox(text, "Host", flags); }
    void Message(const AnsiString& text, const AnsiString&) override { MessageBox(text, c_MessageBoxError); }
    std::optional<TLookupPick> LookupList(const AnsiString&, const AnsiString&, const AnsiString&,
                                          const AnsiString&) override {
        return std::nullopt;
    }
    void LocalizeForm(TLocalizableForm&, const AnsiString&) override {}
};

/// The screen's current row: the delivery note 1 of the supplier 1.
class OneNote final : public TDataSet {
public:
    bool IsEmpty() const override { return false; }
    std::optional<TField> FindField(std::string_view name) const override {
        const bool isKnown = SameDbName(name, "_ID") || SameDbName(name, "_DODVID");
        return isKnown ? std::optional(TField(AnsiString(name), std::int64_t(1), CurrentHost().FormatSettings()))
                       : std::nullopt;
    }
};

template <class Function>
Function EntryPoint(QLibrary& module, const char* name) {
    const QFunctionPointer address = module.resolve(name);
    if (!address) {
        throw EHostError(module.errorString().toStdString());
    }
    return reinterpret_cast<Function>(address);
}

/// The module registers its classes with the host that is installed. It stays loaded to the end of the program.
inline void LoadModule() {
    QLibrary module(QStringLiteral(MELVARK_MODULE));
    module.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    const TPackageInfo* info = EntryPoint<TGetPackageInfoTable>(module, c_GetPackageInfoTableSymbol)();
    if (info->ContractVersion != c_ContractVersion) {
        throw EHostError("The module is for another version of the contract.");
    }
    EntryPoint<TInitializePackage>(module, c_InitializeSymbol)();
}

/// Lets the clerk fill the note from the template; false when he cancels.
inline bool FillNote(TConnection& database) {
    MinimalHost host(database);
    const TScopedHost scope(host); // the current host from here on
    LoadModule();
    MinimalManager manager;
    OneNote note;
    return host.Classes().Create("TMelvarkEditor", &manager)->Execute("DODAK,SABLONA", &note, nullptr);
}
