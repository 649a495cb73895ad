#pragma once

#include "host/Package.h"

#include <memory>
#include <string>

class TClassRegistry;
class TLibraryItem;
class TLibraryManager;

namespace refhost {

class Languages;

/// A plug-in library, loaded and initialised. The library itself stays in memory to the end of the program, since
/// windows and event queues may still refer to its code; the object's end only finalises the package.
class Package {
public:
    /// Loads the library, checks its description and initialises it, so that it registers its classes with the current
    /// host. Throws EHostError with a sentence for the user: no such file, in a place where others can write, no
    /// library, not a package, of another version, or failed to start.
    Package(const std::string& file, const Languages& languages);
    Package(const Package&) = delete;
    Package& operator=(const Package&) = delete;
    ~Package();

    /// Makes the library item of that class. Throws EHostError when the package did not register it.
    std::unique_ptr<TLibraryItem> createItem(const std::string& className, const TClassRegistry& registry,
                                             TLibraryManager* libraryManager) const;

private:
    void checkDescription(TGetPackageInfoTable describe) const;
    void initialize(TInitializePackage start) const;

    std::string name_;
    const Languages& languages_;
    TFinalizePackage finalize_ = nullptr;
};

/// The module's library beside the program, or in the library folder of an installed tree. A file that is nowhere is
/// looked for beside the program.
std::string findPackage(const std::string& programFolder);

} // namespace refhost
