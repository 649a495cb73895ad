#include "tests/refhost/StandbyPair.h"

#include "refhost/database/Databases.h"
#include "tests/database/KilledServer.h"
#include "tests/database/OneItemRows.h"

#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <unistd.h>

namespace refhost {

namespace {

constexpr const char* c_First = "first";
constexpr const char* c_Second = "second";

void addOneItem(Database& database) {
    database.runScript(c_OneItemRows);
    database.runScript("insert into DODAK (CISLO, DATUM, DODVID, SKLDID) values ('DL1', '2026-03-10', 1, 1)");
}

} // namespace

StandbyPair::StandbyPair() : StandbyPair(addOneItem) {}

StandbyPair::StandbyPair(const std::function<void(Database&)>& fill) {
    std::filesystem::permissions(folder_.path(), std::filesystem::perms(0755)); // the servers' user has to pass
    run("start '" + folderOf(c_First) + "' --standby '" + folderOf(c_Second) + "' --without-fsync --until-exit-of " +
        std::to_string(getpid()));
    const auto database = open();
    database->createSchema();
    fill(*database);
}

StandbyPair::~StandbyPair() {
    try {
        run("stop '" + folderOf(c_Second) + "'");
        if (hasFirst_) {
            run("stop '" + folderOf(c_First) + "'");
        }
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
    }
}

std::string StandbyPair::address(const std::string& role) const {
    return "postgresql:host=" + folderOf(c_First) + "," + folderOf(c_Second) + " dbname=postgres user=" + role +
           " target_session_attrs=read-write";
}

std::unique_ptr<Database> StandbyPair::open() const {
    return openDatabase(address(), {}, TFormatSettings::Czech(), OpenMode::Existing);
}

void StandbyPair::killFirst() {
    killServer(folderOf(c_First));
    hasFirst_ = false;
}

void StandbyPair::promoteSecond() const {
    run("promote '" + folderOf(c_Second) + "'");
}

void StandbyPair::run(const std::string& command) const {
    const std::string line = "'" MELVARK_SOURCE_DIR "/packaging/private-server' " + command + " >/dev/null";
    if (std::system(line.c_str()) != 0) {
        throw std::runtime_error("failed: " + line);
    }
}

} // namespace refhost
