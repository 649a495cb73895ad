#include "editwin/AutosavePlace.h"

#include "editwin/model/TempFileName.h"

#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <set>
#include <unistd.h>

namespace {

using melvark::AutosaveDirectory;
using melvark::FileNamePart;

/// Sets an environment variable, or takes it away, for its scope.
class Variable {
public:
    Variable(const char* name, const char* value) : name_(name) {
        if (const char* const before = std::getenv(name)) {
            before_ = before;
        }
        set(value);
    }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;
    ~Variable() { set(before_ ? before_->c_str() : nullptr); }

private:
    void set(const char* value) { value ? setenv(name_, value, 1) : unsetenv(name_); }

    const char* name_;
    std::optional<std::string> before_;
};

/// The name of the directory of a database.
std::string nameOf(const std::string& digest) {
    return "melvark-autosave-" + std::to_string(geteuid()) + "-" + digest;
}

struct PlaceCase {
    const char* name;
    const char* temporary;
    const char* state;
    const char* home;
    const char* base;
};

class AutosavePlace : public testing::TestWithParam<PlaceCase> {};

TEST_P(AutosavePlace, IsWhereTheUsersFilesOutliveARestart) {
    const Variable temporary("TMPDIR", GetParam().temporary);
    const Variable state("XDG_STATE_HOME", GetParam().state);
    const Variable home("HOME", GetParam().home);
    EXPECT_EQ(AutosaveDirectory("abc"), std::filesystem::path(GetParam().base) / nameOf("abc"));
}

INSTANTIATE_TEST_SUITE_P(
    Cases, AutosavePlace,
    testing::Values(PlaceCase{"TemporaryFirst", "/var/tmp/novak", "/state", "/home/novak", "/var/tmp/novak"},
                    PlaceCase{"EmptyTemporaryIsNone", "", "/state", "/home/novak", "/state/melvark"},
                    PlaceCase{"StateHome", nullptr, "/state", "/home/novak", "/state/melvark"},
                    PlaceCase{"RelativeStateHomeIsNone", nullptr, "state", "/home/novak",
                              "/home/novak/.local/state/melvark"},
                    PlaceCase{"Home", nullptr, nullptr, "/home/novak", "/home/novak/.local/state/melvark"}),
    [](const auto& row) { return row.param.name; });

TEST(AutosavePlace, WithoutAnyVariableIsTheHomeThatTheSystemKnows) {
    const Variable temporary("TMPDIR", nullptr);
    const Variable state("XDG_STATE_HOME", nullptr);
    const Variable home("HOME", nullptr);
    const std::filesystem::path directory = AutosaveDirectory("abc");
    EXPECT_TRUE(directory.is_absolute());
    EXPECT_TRUE(directory.string().ends_with("/.local/state/melvark/" + nameOf("abc"))) << directory;
}

TEST(AutosavePlace, OfARelativeTemporaryDirectoryStaysWhenTheProgramGoesElsewhere) {
    const Variable temporary("TMPDIR", "tmp");
    EXPECT_TRUE(std::filesystem::path(AutosaveDirectory("abc")).is_absolute());
}

TEST(AutosavePlace, ADigestThatIsNoneStaysWithin) {
    const Variable temporary("TMPDIR", "/tmp");
    EXPECT_EQ(AutosaveDirectory("../../etc"), "/tmp/" + nameOf("..%2F..%2Fetc"));
    EXPECT_EQ(AutosaveDirectory(""), "/tmp/" + nameOf("%"));
}

struct PartCase {
    const char* name;
    std::string text;
    std::string part;
};

class FileNameParts : public testing::TestWithParam<PartCase> {};

TEST_P(FileNameParts, LeadNowhereElse) {
    EXPECT_EQ(FileNamePart(GetParam().text), GetParam().part);
}

using namespace std::string_literals;

INSTANTIATE_TEST_SUITE_P(Cases, FileNameParts,
                         testing::Values(PartCase{"Plain", "novak", "novak"}, PartCase{"None", "", "%"},
                                         PartCase{"Dots", "..", ".."}, // one part of a longer name
                                         PartCase{"Separators", "../../etc/passwd", "..%2F..%2Fetc%2Fpasswd"},
                                         PartCase{"Czech", "Nováková", "Nováková"},
                                         PartCase{"Blank", "Jan Novák", "Jan%20Novák"},
                                         PartCase{"Spelling", "a%2Fb", "a%252Fb"},
                                         PartCase{"LineFeed", "a\nb", "a%0Ab"}, PartCase{"Nul", "a\0b"s, "a%00b"},
                                         PartCase{"Address", "novak@firma.cz", "novak@firma.cz"}),
                         [](const auto& row) { return row.param.name; });

TEST(FileNamePart, OfDifferentTextsDiffers) {
    const std::string longText(300, 'n');
    const std::string texts[] = {"",
                                 "%",
                                 "%25",
                                 "a/b",
                                 "a%2Fb",
                                 "a_b",
                                 "a-b",
                                 std::string(80, 'n'),
                                 std::string(81, 'n'),
                                 longText,
                                 longText + "o",
                                 "o" + longText,
                                 std::string(300, '/'),
                                 FileNamePart(longText)};
    std::set<std::string> parts;
    for (const std::string& text : texts) {
        EXPECT_TRUE(parts.insert(FileNamePart(text)).second) << text;
    }
}

TEST(FileNamePart, OfALongTextFitsIntoAName) {
    for (const std::string& character : {"n"s, "/"s, "č"s, "😀"s}) {
        std::string user;
        while (user.size() < 300) {
            user += character;
        }
        const std::string part = FileNamePart(user);
        EXPECT_LE(melvark::TempFileName("", part, "DODOBJVZOR", "OBJEDNAVKAVZOR").size(), 200U);
        EXPECT_EQ(part.find('/'), std::string::npos);
    }
}

} // namespace
