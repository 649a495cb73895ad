#include "host/ClassRegistry.h"

#include "host/ContractTexts.h"
#include "host/Exceptions.h"
#include "host/HostServices.h"
#include "host/LibraryItem.h"

#include <utility>

void TClassRegistry::Register(TRegisteredClass entry) {
    FFactories.insert_or_assign(std::move(entry.ClassName), std::move(entry.Create));
}

std::unique_ptr<TLibraryItem> TClassRegistry::Create(std::string_view className,
                                                     TLibraryManager* libraryManager) const {
    const auto entry = FFactories.find(className);
    if (entry == FFactories.end()) {
        throw EHostError(melvark::Sentence(melvark::c_NoClass, {className}));
    }
    return entry->second(libraryManager);
}

bool TClassRegistry::Contains(std::string_view className) const {
    return FFactories.contains(className);
}

void RegisterClasses(std::initializer_list<TRegisteredClass> classes) {
    TClassRegistry& registry = CurrentHost().Classes();
    for (const TRegisteredClass& entry : classes) {
        registry.Register(entry);
    }
}
