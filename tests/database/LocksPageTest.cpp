#include "refhost/database/EmbeddedSql.h"

#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <regex>
#include <set>

namespace refhost {
namespace {

/// "NAME: LOCK" as often as it is taken there.
using Locks = std::multiset<std::string>;

/// Where a lock is named in SQL after the name of what takes it; comments are left out first.
const std::regex c_Taken("create function (\\w+)|constraint (\\w+) (?=exclude)|"
                         "(for update skip locked|for (?:no key )?update|for (?:key )?share|pg_advisory_xact_lock|"
                         "on conflict|exclude\\b|lock table)");

Locks shippedLocks() {
    Locks locks;
    for (const SqlFile& file : postgresqlFiles()) {
        if (file.Path.starts_with("upgrades/")) {
            continue;
        }
        const std::string sql = std::regex_replace(std::string(file.Text), std::regex("--[^\\n]*"), std::string());
        std::string taker;
        for (std::sregex_iterator match(sql.begin(), sql.end(), c_Taken), end; match != end; ++match) {
            if ((*match)[3].matched) {
                locks.insert(taker + ": " + match->str(3));
            } else {
                taker = match->str(1) + match->str(2);
            }
        }
    }
    return locks;
}

Locks toldLocks() {
    std::ifstream page(MELVARK_SOURCE_DIR "/docs/database.md");
    const std::string text{std::istreambuf_iterator<char>(page), {}};
    const std::size_t begin = text.find("## Who waits for whom on the server");
    const std::string section = text.substr(begin, text.find("\n## ", begin) - begin);
    const std::regex row("\\n\\| `(\\w+)` \\| `([^`]+)` \\|");
    Locks locks;
    for (std::sregex_iterator match(section.begin(), section.end(), row), end; match != end; ++match) {
        locks.insert(match->str(1) + ": " + match->str(2));
    }
    return locks;
}

TEST(LocksPage, TellsEveryLockThatTheServersFunctionsTakeAndNoOther) {
    const Locks shipped = shippedLocks();
    EXPECT_THAT(shipped, testing::Contains("next_order_id: pg_advisory_xact_lock"));
    EXPECT_EQ(toldLocks(), shipped);
}

} // namespace
} // namespace refhost
