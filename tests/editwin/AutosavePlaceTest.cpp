#include "editwin/AutosavePlace.h"

#include "editwin/model/TempFileName.h"
#include "host/StateFolder.h"
#include "tests/support/EnvironmentVariable.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <unistd.h>

namespace {

using melvark::AutosaveDirectory;
using melvark::FileNamePart;

/// The name of the directory of a database.
std::string nameOf(const std::string& digest) {
    return "melvark-autosave-" + std::to_string(geteuid()) + "-" + digest;
}

TEST(AutosavePlace, IsTheUsersOwnTemporaryDirectoryWhenThereIsOne) {
    const EnvironmentVariable temporary("TMPDIR", "/var/tmp/novak");
    EXPECT_EQ(AutosaveDirectory("abc"), "/var/tmp/novak/" + nameOf("abc"));
}

TEST(AutosavePlace, IsElseWhereTheUsersFilesOutliveARestart) {
    for (const char* const none : {static_cast<const char*>(nullptr), ""}) {
        const EnvironmentVariable temporary("TMPDIR", none);
        EXPECT_EQ(AutosaveDirectory("abc"), melvark::StateFolder() + "/" + nameOf("abc"));
    }
}

TEST(AutosavePlace, OfARelativeTemporaryDirectoryStaysWhenTheProgramGoesElsewhere) {
    const EnvironmentVariable temporary("TMPDIR", "tmp");
    EXPECT_TRUE(std::filesystem::path(AutosaveDirectory("abc")).is_absolute());
}

TEST(AutosavePlace, ADigestThatIsNoneStaysWithin) {
    const EnvironmentVariable temporary("TMPDIR", "/tmp");
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
