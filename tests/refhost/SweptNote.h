#pragma once

#include "refhost/database/PostgreSQLSession.h"
#include "tests/refhost/SaveSweep.h"
#include "tests/support/TemporaryFolder.h"

#include <string>

namespace refhost {

class Database;
class IdentifiedSaves;

/// So often presses a clerk OK before he gives up.
inline constexpr int c_MostTries = 500;

/// The open note of a company of its own, which takes the saves of a sweep, each with a quantity of its own. Collects
/// what is wrong with them.
class SweptNote {
public:
    /// Saves of so many rows.
    SweptNote(Engine engine, int rows);

    const std::string& url() const { return url_; }
    std::string folder() const { return state_.path() / "saves"; }

    /// The module's calls of a save.
    void save(IdentifiedSaves& program) const;
    /// Presses OK until the save is acknowledged; false when it never is.
    bool saveAgainAndAgain(IdentifiedSaves& program) const;

    /// The next point has the next quantity.
    void begin();
    void expect(bool isRight, const std::string& point, const std::string& what);
    void expectOldOrNew(Database& database, const std::string& point);
    void expectOld(Database& database, const std::string& point);
    void expectNew(Database& database, const std::string& point);
    SweepResult result() const { return result_; }

private:
    int stored(Database& database) const;

    const TemporaryFolder state_{"save-sweep"};
    int rows_;
    std::string url_;
    int quantity_ = 0;
    SweepResult result_;
};

/// A session of the server's administrator.
PostgreSQLSession administratorOf(const std::string& url);
/// The tests' server is set up for speed; here its commits have to last as those of a server of people. `commit` is
/// what they wait for: "on", or "local" for its own disk alone.
void keepWhatIsAcknowledged(const std::string& url, const std::string& commit = "on");

} // namespace refhost
