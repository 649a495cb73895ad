#pragma once

#include <filesystem>
#include <string>

/// A folder of a test program that disappears with its owner. Its name tells the kind and the process, so that what a
/// killed program left behind is removed by the next one that makes a folder of that kind.
class TemporaryFolder {
public:
    /// Throws std::runtime_error when the system's folder for such things takes none.
    explicit TemporaryFolder(const std::string& kind);
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    const std::filesystem::path& path() const { return path_; }

private:
    std::filesystem::path path_;
};
