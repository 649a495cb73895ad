// Loaded into a host before its libraries, this ends it, as a power failure would, at the moment in which it has the
// answer to a closing call and is about to forget the identity of that save.

#include <csignal>
#include <dlfcn.h>
#include <string_view>

extern "C" int unlink(const char* path) noexcept {
    if (std::string_view(path).ends_with(".save")) {
        raise(SIGKILL);
    }
    using Function = int (*)(const char*);
    static const auto system = reinterpret_cast<Function>(dlsym(RTLD_NEXT, "unlink"));
    return system(path);
}
