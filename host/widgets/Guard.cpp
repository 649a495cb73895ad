#include "host/widgets/Guard.h"

#include "host/Exceptions.h"
#include "host/HostServices.h"

#include <cstdio>

namespace melvark {

namespace {

void WriteError(const std::exception_ptr& error) noexcept {
    try {
        std::rethrow_exception(error);
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "%s\n", exception.what());
    } catch (...) {
        std::fputs("unknown error\n", stderr);
    }
}

} // namespace

void ReportError(std::exception_ptr error) noexcept {
    try {
        CurrentHost().ShowError(error);
    } catch (const EHostError&) {
        WriteError(error);
    }
}

} // namespace melvark
