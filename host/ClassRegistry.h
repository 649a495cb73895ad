#pragma once

#include "host/Types.h"

#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string_view>

class TLibraryItem;
class TLibraryManager;

/// Makes one library item of a class; it stands for the framework's virtual constructor.
using TLibraryItemFactory = std::function<std::unique_ptr<TLibraryItem>(TLibraryManager*)>;

struct TRegisteredClass {
    AnsiString ClassName;
    TLibraryItemFactory Create;
};

/// The classes that packages registered, found by name (exactly, case-sensitively). One belongs to each host.
class TClassRegistry {
public:
    /// Registering a name again replaces its factory.
    void Register(TRegisteredClass entry);
    /// Throws EHostError naming the class when none of that name is registered.
    std::unique_ptr<TLibraryItem> Create(std::string_view className, TLibraryManager* libraryManager) const;
    bool Contains(std::string_view className) const;

private:
    std::map<AnsiString, TLibraryItemFactory, std::less<>> FFactories;
};

/// Registers the classes with the current host's registry.
void RegisterClasses(std::initializer_list<TRegisteredClass> classes);
