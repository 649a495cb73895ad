#include "host/HostServices.h"

#include "host/Exceptions.h"

#include <utility>

namespace {

THostServices* installedHost = nullptr;

} // namespace

THostServices::~THostServices() = default;

bool HasCurrentHost() {
    return installedHost != nullptr;
}

THostServices& CurrentHost() {
    if (!HasCurrentHost()) {
        throw EHostError("Hostitelská aplikace neposkytuje své služby.");
    }
    return *installedHost;
}

TScopedHost::TScopedHost(THostServices& services) : FPrevious(std::exchange(installedHost, &services)) {}

TScopedHost::~TScopedHost() {
    installedHost = FPrevious;
}
