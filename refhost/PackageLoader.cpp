#include "refhost/PackageLoader.h"

#include "host/ClassRegistry.h"
#include "host/Exceptions.h"
#include "host/LibraryItem.h"
#include "refhost/Languages.h"
#include "refhost/TrustedFile.h"

#include <QFileInfo>
#include <QLibrary>
#include <QRegularExpression>

#include <array>
#include <optional>

namespace refhost {

namespace {

/// Beside the program in a build folder; where the installation put it, seen from the program.
constexpr std::array c_packageFolders{"", "/" MELVARK_MODULE_FOLDER};
const QString c_packageFile = QStringLiteral("/MelvarkEditor.so");

template <typename... Values>
[[noreturn]] void refuse(const Languages& languages, const HostText& text, const Values&... values) {
    throw EHostError(languages.label(text).arg(QString::fromStdString(values)...).toStdString());
}

/// The other version of the contract whose library the loader missed: in whatever language it complains, it names the
/// file, and the file's name ends in the version.
std::optional<std::string> missedContract(const QString& complaint) {
    static const QRegularExpression contract(QStringLiteral(R"(libhostcontract\.so\.(\d+))"));
    const QString version = contract.match(complaint).captured(1);
    return version.isEmpty() || version == QString::number(c_ContractVersion) ? std::nullopt
                                                                              : std::optional(version.toStdString());
}

/// The library with all its symbols bound, so that a part that does not fit shows itself now and not in use.
void load(QLibrary& library, const std::string& name, const Languages& languages) {
    if (!QFileInfo::exists(library.fileName())) {
        refuse(languages, texts::pluginNotFound, name);
    }
    // Its code would run with the user's rights.
    if (const std::string place = openToOthers(library.fileName().toStdString()); !place.empty()) {
        refuse(languages, texts::pluginUnsafe, name, place);
    }
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint | QLibrary::PreventUnloadHint);
    if (!library.load()) {
        if (const auto version = missedContract(library.errorString())) {
            refuse(languages, texts::pluginVersion, name, *version, std::to_string(c_ContractVersion));
        }
        refuse(languages, texts::pluginUnloadable, name, library.errorString().toStdString());
    }
}

template <typename Function>
Function resolve(QLibrary& library, const char* symbol, const std::string& name, const Languages& languages) {
    const QFunctionPointer address = library.resolve(symbol);
    if (!address) {
        refuse(languages, texts::pluginNoEntry, name, std::string(symbol));
    }
    return reinterpret_cast<Function>(address);
}

} // namespace

Package::Package(const std::string& file, const Languages& languages)
    : name_(QFileInfo(QString::fromStdString(file)).fileName().toStdString()), languages_(languages) {
    QLibrary library(QString::fromStdString(file));
    load(library, name_, languages);
    checkDescription(resolve<TGetPackageInfoTable>(library, c_GetPackageInfoTableSymbol, name_, languages));
    const auto finalize = resolve<TFinalizePackage>(library, c_FinalizeSymbol, name_, languages);
    initialize(resolve<TInitializePackage>(library, c_InitializeSymbol, name_, languages));
    finalize_ = finalize;
}

Package::~Package() {
    if (finalize_) {
        finalize_();
    }
}

void Package::checkDescription(TGetPackageInfoTable describe) const {
    const TPackageInfo* info = describe();
    if (!info) {
        refuse(languages_, texts::pluginNoEntry, name_, std::string(c_GetPackageInfoTableSymbol));
    }
    if (info->ContractVersion != c_ContractVersion) {
        refuse(languages_, texts::pluginVersion, name_, std::to_string(info->ContractVersion),
               std::to_string(c_ContractVersion));
    }
}

void Package::initialize(TInitializePackage start) const {
    try {
        start();
    } catch (const std::exception& error) {
        refuse(languages_, texts::pluginStart, name_, std::string(error.what()));
    }
}

std::unique_ptr<TLibraryItem> Package::createItem(const std::string& className, const TClassRegistry& registry,
                                                  TLibraryManager* libraryManager) const {
    if (!registry.Contains(className)) {
        refuse(languages_, texts::pluginNoClass, name_, className);
    }
    return registry.Create(className, libraryManager);
}

std::string findPackage(const std::string& programFolder) {
    const QString folder = QString::fromStdString(programFolder);
    for (const char* place : c_packageFolders) {
        const QString file = folder + QString::fromUtf8(place) + c_packageFile;
        if (QFileInfo::exists(file)) {
            return file.toStdString();
        }
    }
    return (folder + c_packageFile).toStdString();
}

} // namespace refhost
