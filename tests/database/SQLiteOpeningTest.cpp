#include "refhost/database/Databases.h"
#include "tests/database/SQLiteFile.h"

#include <fstream>
#include <gmock/gmock.h>
#include <sqlite3.h>
#include <thread>
#include <unistd.h>

namespace refhost {
namespace {

using testing::HasSubstr;

/// The sentence with which opening the file ends, its code in front.
std::string openingError(const SQLiteFile& file, bool create = false) {
    try {
        file.open("novakova", create);
    } catch (const EDatabaseError& error) {
        return error.Code() + " " + error.Message();
    }
    return "opened";
}

/// Opens the file as the host does, which waits for others.
void openForPatientClerk(const SQLiteFile& file) {
    openDatabase("sqlite:" + file.path().string(), "novakova", TFormatSettings::Czech(), OpenMode::Existing);
}

/// Another program's own connection to the file.
class OtherProgram {
public:
    explicit OtherProgram(const SQLiteFile& file) {
        sqlite3* opened = nullptr;
        EXPECT_EQ(sqlite3_open(file.path().c_str(), &opened), SQLITE_OK);
        handle_.reset(opened);
    }
    void run(const char* sql) { ASSERT_EQ(sqlite3_exec(handle_.get(), sql, nullptr, nullptr, nullptr), SQLITE_OK); }
    std::string text(const char* sql) {
        sqlite3_stmt* prepared = nullptr;
        EXPECT_EQ(sqlite3_prepare_v2(handle_.get(), sql, -1, &prepared, nullptr), SQLITE_OK);
        const SQLiteStatementHandle handle(prepared);
        EXPECT_EQ(sqlite3_step(prepared), SQLITE_ROW) << sql;
        return reinterpret_cast<const char*>(sqlite3_column_text(prepared, 0));
    }

private:
    SQLiteHandle handle_;
};

/// Gives up the rights of the administrator, who may write everywhere, for its scope.
class OrdinaryUser {
public:
    OrdinaryUser() {
        if (geteuid() == 0) {
            EXPECT_EQ(seteuid(65534), 0);
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser() {
        if (getuid() == 0) {
            EXPECT_EQ(seteuid(0), 0);
        }
    }
};

TEST(SQLiteOpening, AMissingFileIsRefusedUnlessItMayBeMade) {
    const SQLiteFile file;
    EXPECT_THAT(openingError(file), HasSubstr("ML915 Soubor databáze"));
    EXPECT_FALSE(std::filesystem::exists(file.path()));
    EXPECT_EQ(openingError(file, true), "opened");
}

TEST(SQLiteOpening, AMissingFolderIsNamed) {
    const SQLiteFile file;
    EXPECT_EQ(refusalCode([&] {
                  openDatabase("sqlite:" + (file.folder() / "nowhere" / "x.db").string(), "u", TFormatSettings::Czech(),
                               OpenMode::Create);
              }),
              "ML915");
}

TEST(SQLiteOpening, AFolderIsNoDatabase) {
    const SQLiteFile file;
    EXPECT_EQ(refusalCode([&] {
                  openDatabase("sqlite:" + file.folder().string(), "u", TFormatSettings::Czech(), OpenMode::Create);
              }),
              "ML915");
}

TEST(SQLiteOpening, AnAddressOfNoEngineIsRefused) {
    EXPECT_THROW(openDatabase("company.db", "u", TFormatSettings::Czech(), OpenMode::Create), EDatabaseError);
}

TEST(SQLiteOpening, AFileOfText) {
    const SQLiteFile file;
    std::ofstream(file.path()) << std::string(2000, 'x');
    EXPECT_THAT(openingError(file), HasSubstr("ML912 Soubor"));
}

TEST(SQLiteOpening, AFileOfAnotherProgramIsLeftAlone) {
    const SQLiteFile file;
    OtherProgram(file).run("create table NOTES (TEXT)");
    EXPECT_THAT(openingError(file, true), HasSubstr("ML913"));
    OtherProgram(file).run("select TEXT from NOTES");
}

TEST(SQLiteOpening, AFileOfAnotherVersion) {
    const SQLiteFile file;
    file.createCompany();
    OtherProgram(file).run("pragma user_version = 99");
    EXPECT_THAT(openingError(file), HasSubstr("ML914"));
}

TEST(SQLiteOpening, AFileThatAnotherProgramLocksIsRefusedAndOpensAfterwards) {
    const SQLiteFile file;
    file.createCompany();
    for (const char* lock : {"begin exclusive", "begin immediate"}) { // the second one lets others read
        OtherProgram other(file);
        other.run("pragma journal_mode = delete");
        other.run(lock);
        EXPECT_THAT(openingError(file), HasSubstr("ML910")) << lock;
        other.run("commit");
        EXPECT_EQ(openingError(file), "opened") << lock;
    }
}

TEST(SQLiteOpening, TurningAFileToTheLogWaitsForAnotherProgramThatReadsOrWritesInIt) {
    const SQLiteFile file;
    file.createCompany();
    for (const char* work : {"begin; select * from SKLAD", "begin immediate"}) {
        OtherProgram other(file);
        other.run("pragma journal_mode = delete");
        other.run(work);
        std::thread end([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(300));
            other.run("commit");
        });
        EXPECT_EQ(refusalCode([&] { openForPatientClerk(file); }), "none") << work;
        end.join();
        EXPECT_EQ(OtherProgram(file).text("pragma journal_mode"), "wal") << work;
    }
}

TEST(SQLiteOpening, AReadOnlyFileIsRefusedAtOnce) {
    const SQLiteFile file;
    const auto administrator = file.createCompany(); // While he is there, others could read without writing a byte.
    std::filesystem::permissions(file.folder(), std::filesystem::perms(0755));
    for (const char* suffix : {"", "-wal", "-shm"}) {
        std::filesystem::permissions(file.path().string() + suffix, std::filesystem::perms(0444));
    }
    const OrdinaryUser user;
    EXPECT_THAT(openingError(file), HasSubstr("ML911"));
}

TEST(SQLiteOpening, ADamagedFileRefusesTheCallThatMeetsTheDamage) {
    const SQLiteFile file;
    file.createCompany();
    std::fstream bytes(file.path(), std::ios::in | std::ios::out | std::ios::binary);
    constexpr std::streamoff c_PageSize = 4096;
    for (std::streamoff page = 1; page < 30; ++page) {
        bytes.seekp(page * c_PageSize);
        bytes << std::string(200, '\xFF');
    }
    bytes.close();
    EXPECT_EQ(refusalCode([&] { file.open()->Query("select * from SCREEN_DODAK_V"); }), "ML912");
}

TEST(SQLiteOpening, ADatabaseWithoutTablesSaysSo) {
    const SQLiteFile file;
    const auto database = file.open();
    EXPECT_FALSE(database->hasSchema());
    EXPECT_EQ(refusalCode([&] { database->Execute(procedureCall("MELVARKEDITORDodakInit")); }), "ML922");
    EXPECT_EQ(refusalCode([&] { database->Query("select NAZEV from SKLAD_V"); }), "ML922");
    EXPECT_EQ(database->Query("select 1 as A").Rows.size(), 1U) << "what needs no table is answered";
}

TEST(SQLiteOpening, AFileHasOneAddressWhateverItsPathIsCalled) {
    const SQLiteFile file;
    file.createCompany();
    const std::filesystem::path link = file.folder() / "link";
    std::filesystem::create_directory_symlink(file.folder(), link);
    const auto address = [](const std::filesystem::path& path) {
        return openDatabase("sqlite:" + path.string(), "novakova", TFormatSettings::Czech(), OpenMode::Existing)
            ->address();
    };
    EXPECT_EQ(address(file.path()), "sqlite:" + file.path().string());
    EXPECT_EQ(address(link / file.path().filename()), address(file.path()));
    EXPECT_EQ(address(std::filesystem::relative(file.path())), address(file.path()));
}

TEST(SQLiteOpening, TablesAreMadeOnce) {
    const SQLiteFile file;
    const auto database = file.createCompany();
    EXPECT_TRUE(database->hasSchema());
    EXPECT_EQ(refusalCode([&] { database->createSchema(); }), "ML921");
    EXPECT_EQ(rowsText(*database, "select CISLO from DODAK order by ID"), "DL-1|DL-2");
}

} // namespace
} // namespace refhost
