#include "host/HostServices.h"

#include "host/Exceptions.h"

#include <utility>

namespace {

THostServices* installedHost = nullptr;

} // namespace

THostServices::~THostServices() = default;

THostServices& CurrentHost() {
    if (installedHost == nullptr) {
        throw EHostError("Hostitelská aplikace neposkytuje své služby.");
    }
    return *installedHost;
}

TScopedHost::TScopedHost(THostServices& services) : FPrevious(std::exchange(installedHost, &services)) {}

TScopedHost::~TScopedHost() {
    installedHost = FPrevious;
}
