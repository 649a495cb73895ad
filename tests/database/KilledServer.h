#pragma once

#include <filesystem>

namespace refhost {

/// Kills the server of packaging/private-server in the folder, in the middle of whatever it does, and waits until the
/// last of its processes is gone: those of its clients end by themselves, a moment later. Throws std::runtime_error.
void killServer(const std::filesystem::path& folder);

} // namespace refhost
