// A host that lets the clerk fill one delivery note from the template and prints what its database then holds.

#include "MemoryDatabase.h"

#include <QApplication>
#include <QDateTime>
#include <QLibrary>

#include <chrono>
#include <cstdio>
#include <exception>
#include <host/DataSet.h>
#include <host/Exceptions.h>
#include <host/HostServices.h>
#include <host/LibraryItem.h>
#include <host/Package.h>
#include <host/widgets/MessageBox.h>
#include <memory>

namespace {

/// No language, no image: the module's own texts and plain buttons are shown.
class MinimalHost final : public THostServices {
public:
    TConnection& Connection() override { return FDatabase; }
    const TFormatSettings& FormatSettings() const override { return FSettings; }
    std::optional<AnsiString> Translation(std::string_view, std::string_view) const override { return std::nullopt; }
    std::string_view ImageData(std::string_view, std::string_view) const override { return {}; }

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

    AnsiString DatabaseDigest() const override { return "memory"; }

    const MemoryDatabase& Database() const { return FDatabase; }

private:
    TFormatSettings FSettings = TFormatSettings::English();
    MemoryDatabase FDatabase{FSettings};
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
void LoadModule() {
    QLibrary module(QStringLiteral(MELVARK_MODULE));
    module.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    const TPackageInfo* info = EntryPoint<TGetPackageInfoTable>(module, c_GetPackageInfoTableSymbol)();
    if (info->ContractVersion != c_ContractVersion) {
        throw EHostError("The module is for another version of the contract.");
    }
    EntryPoint<TInitializePackage>(module, c_InitializeSymbol)();
}

int FillNote(MinimalHost& host) {
    LoadModule();
    MinimalManager manager;
    const std::unique_ptr<TLibraryItem> item = host.Classes().Create("TMelvarkEditor", &manager);
    OneNote note;
    if (!item->Execute("DODAK,SABLONA", &note, nullptr)) {
        return 1;
    }
    for (const MemoryDatabase::Line& line : host.Database().StoredLines()) {
        std::printf("%s: %g at %g\n", line.Item.c_str(), line.Quantity, line.UnitPrice);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false); // a dialog may be the only window for a while
    MinimalHost host;
    const TScopedHost scope(host); // the current host from here on
    try {
        return FillNote(host);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
