#include "host/StateFolder.h"

#include "tests/support/EnvironmentVariable.h"

#include <gtest/gtest.h>
#include <pwd.h>
#include <string>
#include <unistd.h>

namespace {

using melvark::StateFolder;

struct FolderCase {
    const char* name;
    const char* state;
    const char* home;
    const char* folder;
};

class StateFolders : public testing::TestWithParam<FolderCase> {};

TEST_P(StateFolders, AreWhereTheDesktopKeepsTheStateOfPrograms) {
    const EnvironmentVariable state("XDG_STATE_HOME", GetParam().state);
    const EnvironmentVariable home("HOME", GetParam().home);
    EXPECT_EQ(StateFolder(), GetParam().folder);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, StateFolders,
    testing::Values(FolderCase{"StateHome", "/state", "/home/novak", "/state/melvark"},
                    FolderCase{"EmptyStateHomeIsNone", "", "/home/novak", "/home/novak/.local/state/melvark"},
                    FolderCase{"RelativeStateHomeIsNone", "state", "/home/novak", "/home/novak/.local/state/melvark"},
                    FolderCase{"Home", nullptr, "/home/novak", "/home/novak/.local/state/melvark"}),
    [](const auto& row) { return row.param.name; });

TEST(StateFolder, WithoutAnyVariableIsInTheHomeThatTheSystemKnows) {
    const EnvironmentVariable state("XDG_STATE_HOME", nullptr);
    const std::string home = getpwuid(geteuid())->pw_dir;
    for (const char* const none : {static_cast<const char*>(nullptr), "", "home/novak"}) {
        const EnvironmentVariable variable("HOME", none);
        EXPECT_EQ(StateFolder(), home + "/.local/state/melvark");
    }
}

} // namespace
