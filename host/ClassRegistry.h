#pragma once

/// \file
/// How a plug-in makes its classes known and how a host makes their objects.

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

/// A row of what a package registers in its Initialize.
struct TRegisteredClass {
    AnsiString ClassName;       ///< By which the host asks for it: "TMelvarkEditor".
    TLibraryItemFactory Create; ///< Not empty.
};

/// The classes that packages registered, found by name (exactly, case-sensitively). One belongs to each host
/// (THostServices::Classes); packages fill it through RegisterClasses.
class TClassRegistry {
public:
    /// Registering a name again replaces its factory.
    void Register(TRegisteredClass entry);
    /// A new item of the class; the caller owns it and next calls TLibraryItem::Execute. The library manager may be
    /// null and must outlive the item. Throws EHostError naming the class when none of that name is registered.
    std::unique_ptr<TLibraryItem> Create(std::string_view className, TLibraryManager* libraryManager) const;
    /// Whether a class of that name is registered.
    bool Contains(std::string_view className) const;

private:
    std::map<AnsiString, TLibraryItemFactory, std::less<>> FFactories;
};

/// Registers the classes with the current host's registry. Throws EHostError when no host is installed.
void RegisterClasses(std::initializer_list<TRegisteredClass> classes);
