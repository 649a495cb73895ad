#include "refhost/database/Databases.h"
#include "refhost/database/SQLiteSession.h"
#include "tests/database/VersionOne.h"

#include <cstring>
#include <gmock/gmock.h>

namespace refhost {
namespace {

using testing::ElementsAre;

/// The opposite of the byte order: what a library of another version might do to an index.
int backwards(void* /*context*/, int leftSize, const void* left, int rightSize, const void* right) {
    const int order = std::memcmp(left, right, static_cast<std::size_t>(std::min(leftSize, rightSize)));
    return order != 0 ? -order : rightSize - leftSize;
}

TEST(CollationVersion, AFileThatAnotherLibrarySortedIsSortedAnewBeforeItIsUsed) {
    const std::string url = newDatabaseUrl(Engine::SQLite);
    {
        SQLiteSession other(url.substr(std::string("sqlite:").size()), "", TFormatSettings{}, OpenMode::Existing,
                            std::chrono::seconds(5));
        ASSERT_EQ(sqlite3_create_collation_v2(other.handle(), "CZECH", SQLITE_UTF8, nullptr, backwards, nullptr),
                  SQLITE_OK);
        other.execute("insert into SKLAD (NAZEV) values ('A'), ('B'), ('C'); reindex CZECH;"
                      "update RAZENI set VERZE = '1.2.3'");
    }
    ASSERT_THAT(BareConnection(url).rows("select NAZEV from SKLAD order by NAZEV"), ElementsAre("C", "B", "A"))
        << "the index was to be in the wrong order";

    const auto database = openDatabase(url, "novakova", TFormatSettings::Czech(), OpenMode::Existing);

    BareConnection after(url);
    EXPECT_THAT(after.rows("select NAZEV from SKLAD order by NAZEV"), ElementsAre("A", "B", "C"));
    EXPECT_THAT(after.rows("pragma integrity_check"), ElementsAre("ok"));
    EXPECT_THAT(after.rows("select count(*) from RAZENI where VERZE = '1.2.3'"), ElementsAre("0"));
}

TEST(CollationVersion, AFileOfTheSameLibraryIsLeftAlone) {
    const std::string url = newDatabaseUrl(Engine::SQLite);
    BareConnection watcher(url);
    const auto before = watcher.rows("pragma data_version");
    openDatabase(url, "novakova", TFormatSettings::Czech(), OpenMode::Existing);
    EXPECT_EQ(watcher.rows("pragma data_version"), before);
}

TEST(CollationVersion, TheServersIndicesAreMadeAnewByTheFirstClerkWhoComes) {
    const std::string url = newDatabaseUrl(Engine::PostgreSQL);
    BareConnection administrator(url + " user=postgres");
    const char* file = "select relfilenode from pg_class where oid = 'melvark.sklad_nazev_key'::regclass";
    const char* other = "select relfilenode from pg_class where oid = 'melvark.sklad_pkey'::regclass";
    const auto index = administrator.rows(file);
    const auto otherIndex = administrator.rows(other);
    administrator.run("update pg_collation set collversion = '1.2.3' where oid = 'melvark.czech'::regcollation");

    openAs(url, "dvorak");

    EXPECT_NE(administrator.rows(file), index);
    EXPECT_EQ(administrator.rows(other), otherIndex) << "an index without names has nothing to do with it";
    EXPECT_THAT(administrator.rows("select collversion = pg_collation_actual_version(oid) from pg_collation "
                                   "where oid = 'melvark.czech'::regcollation"),
                ElementsAre("1"));
    const auto again = administrator.rows(file);
    openAs(url, "dvorak");
    EXPECT_EQ(administrator.rows(file), again) << "the second one finds it done";
}

} // namespace
} // namespace refhost
