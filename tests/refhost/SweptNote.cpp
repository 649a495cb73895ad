#include "tests/refhost/SweptNote.h"

#include "host/Exceptions.h"
#include "refhost/IdentifiedSaves.h"
#include "tests/database/ContractCompany.h"

#include <chrono>
#include <thread>

namespace refhost {

SweptNote::SweptNote(Engine engine, int rows) : rows_(rows), url_(newDatabaseUrl(engine)) {
    addContractCompany(*openAs(url_, "novakova"));
}

void SweptNote::save(IdentifiedSaves& program) const {
    program.Execute({"MELVARKEDITORResetTemp", {}, false});
    for (int row = 0; row < rows_; ++row) {
        program.Execute({"MELVARKEDITORDodakInsertToTemp",
                         {{"a_SKLADPOL", AnsiString("Sirup")}, {"a_MNOZSTVI", AnsiString(std::to_string(quantity_))}},
                         false});
    }
    program.Execute({"MELVARKEDITORDodakTempUloz", {{"a_DODKID", std::int64_t{c_OpenNote}}}, false});
}

bool SweptNote::saveAgainAndAgain(IdentifiedSaves& program) const {
    for (int attempt = 0; attempt < c_MostTries; ++attempt) {
        try {
            save(program);
            return true;
        } catch (const EDatabaseError&) {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    }
    return false;
}

void SweptNote::begin() {
    ++quantity_;
    ++result_.Points;
}

void SweptNote::expect(bool isRight, const std::string& point, const std::string& what) {
    if (!isRight) {
        result_.Wrong.push_back(point + " of " + std::to_string(rows_) + " rows: " + what);
    }
}

int SweptNote::stored(Database& database) const {
    const auto table = database.Query("select count(*) from DODAKPOL where DODKID = 2 and PORADI > 1 and "
                                      "MNOZSTVI = '" +
                                      std::to_string(quantity_) + "'");
    return static_cast<int>(std::get<std::int64_t>(table.Rows.front().front()));
}

void SweptNote::expectOldOrNew(Database& database, const std::string& point) {
    const int lines = stored(database);
    expect(lines == 0 || lines == rows_, point, std::to_string(lines) + " lines after the break");
}

void SweptNote::expectOld(Database& database, const std::string& point) {
    const int lines = stored(database);
    expect(lines == 0, point, std::to_string(lines) + " lines after the break");
}

void SweptNote::expectNew(Database& database, const std::string& point) {
    const int lines = stored(database);
    expect(lines == rows_, point, std::to_string(lines) + " lines in the end");
}

PostgreSQLSession administratorOf(const std::string& url) {
    return PostgreSQLSession(url.substr(std::string_view("postgresql:").size()) + " user=postgres", TFormatSettings{});
}

void keepWhatIsAcknowledged(const std::string& url, const std::string& commit) {
    PostgreSQLSession administrator = administratorOf(url);
    administrator.execute("alter database " + administrator.database() + " set synchronous_commit = " + commit);
    administrator.execute("checkpoint");
}

} // namespace refhost
