#include "tests/refhost/FailoverRun.h"

#include "host/Exceptions.h"
#include "refhost/IdentifiedSaves.h"
#include "refhost/database/Database.h"
#include "tests/refhost/StandbyPair.h"

#include <future>
#include <map>
#include <stdexcept>
#include <thread>

namespace refhost {

namespace {

using std::chrono::steady_clock;

constexpr int c_LinesOfASave = 3;
/// So many saves on the second server show that it goes on.
constexpr int c_SavesAfterwards = 5;
constexpr std::chrono::seconds c_Limit{60};

/// The module's calls of one save, whose lines all have the quantity.
void save(IdentifiedSaves& program, int quantity) {
    program.Execute({"MELVARKEDITORResetTemp", {}, false});
    for (int line = 0; line < c_LinesOfASave; ++line) {
        program.Execute({"MELVARKEDITORDodakInsertToTemp",
                         {{"a_SKLADPOL", AnsiString("Mléko")}, {"a_MNOZSTVI", AnsiString(std::to_string(quantity))}},
                         false});
    }
    program.Execute({"MELVARKEDITORDodakTempUloz", {{"a_DODKID", std::int64_t{1}}}, false});
}

/// How many lines each quantity has in the note.
std::map<int, int> storedLines(Database& database) {
    std::map<int, int> lines;
    for (const auto& row : database
                               .Query("select MNOZSTVI::integer, count(*)::integer from melvark.DODAKPOL "
                                      "where DODKID = 1 group by MNOZSTVI")
                               .Rows) {
        lines[static_cast<int>(std::get<std::int64_t>(row[0]))] = static_cast<int>(std::get<std::int64_t>(row[1]));
    }
    return lines;
}

} // namespace

FailoverRun runFailover(std::chrono::milliseconds beforeKill) {
    StandbyPair servers;
    const TemporaryFolder state("failover");
    const auto database = servers.open();
    IdentifiedSaves program(*database, state.path() / "saves");
    FailoverRun run;

    auto failover = std::async(std::launch::async, [&] {
        std::this_thread::sleep_for(beforeKill);
        servers.killFirst();
        servers.promoteSecond();
    });
    const auto end = steady_clock::now() + c_Limit;
    for (int after = 0; after < c_SavesAfterwards;) {
        if (steady_clock::now() > end) {
            throw std::runtime_error("the clerk never came through");
        }
        try {
            save(program, run.Saved + 1);
            ++run.Saved;
            ++(run.Told.empty() ? run.SavedOnFirst : after);
        } catch (const EDatabaseError& error) {
            run.Told.push_back(error.Code());
            std::this_thread::sleep_for(std::chrono::milliseconds(20)); // he reads it, and presses OK again
        }
    }
    failover.get();

    std::map<int, int> lines = storedLines(*database);
    for (int quantity = 1; quantity <= run.Saved; ++quantity) {
        if (lines[quantity] != c_LinesOfASave) {
            run.Wrong.push_back(std::to_string(quantity) + " has " + std::to_string(lines[quantity]) + " lines");
        }
        lines.erase(quantity);
    }
    for (const auto& [quantity, count] : lines) {
        run.Wrong.push_back(std::to_string(quantity) + " was never acknowledged and has " + std::to_string(count) +
                            " lines");
    }
    return run;
}

} // namespace refhost
