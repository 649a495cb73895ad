// The entry points of libFuzzer: melvark_fuzz --target=NAME [OPTION...] [FOLDER or FILE...]

#include "tests/fuzzing/FuzzTarget.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

const FuzzTarget* chosenTarget = nullptr;

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    constexpr std::string_view c_Option = "--target=";
    for (int index = 1; index < *argc; ++index) {
        const std::string_view argument = (*argv)[index];
        if (argument.starts_with(c_Option)) {
            chosenTarget = findFuzzTarget(argument.substr(c_Option.size()));
        }
    }
    if (!chosenTarget) {
        std::fputs("melvark_fuzz: --target= names one of:", stderr);
        for (const FuzzTarget& target : fuzzTargets()) {
            std::fprintf(stderr, " %s", target.Name);
        }
        std::fputs("\n", stderr);
        std::exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string fault = chosenTarget->Judge({reinterpret_cast<const char*>(data), size});
    if (!fault.empty()) {
        std::fprintf(stderr, "%s: %s\n", chosenTarget->Name, fault.c_str());
        std::abort();
    }
    return 0;
}
