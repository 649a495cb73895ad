#pragma once

#include "tests/support/TemporaryFolder.h"

#include <functional>
#include <memory>
#include <string>

namespace refhost {

class Database;

/// Two private servers with one company: the first is written to, the second has all that the first has acknowledged
/// and takes over when it is told to.
class StandbyPair {
public:
    /// The company has one item, "Mléko", and one open delivery note, 1.
    StandbyPair();
    /// A company that `fill` makes on the empty schema.
    explicit StandbyPair(const std::function<void(Database&)>& fill);
    StandbyPair(const StandbyPair&) = delete;
    StandbyPair& operator=(const StandbyPair&) = delete;
    ~StandbyPair();

    /// The address that names both and means the one that may be written to, for a role; "postgres" is the
    /// administrator's.
    std::string address(const std::string& role = "postgres") const;
    /// Waits for neither of them: throws EDatabaseError when none can be written to.
    std::unique_ptr<Database> open() const;

    /// The first server is gone at once, in the middle of whatever it does.
    void killFirst();
    void promoteSecond() const;

private:
    void run(const std::string& command) const;
    std::string folderOf(const char* server) const { return (folder_.path() / server).string(); }

    TemporaryFolder folder_{"standby"};
    bool hasFirst_ = true;
};

} // namespace refhost
