#include "refhost/screens/WindowLook.h"

#include "tests/support/TemporaryFolder.h"

#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace refhost {

namespace {

const WindowLook& someLook() {
    static const WindowLook look{
        .place = melvark::WindowPlacement{-40, 60, 900, 500, true},
        .screen = "DODOBJ",
        .screens = {{"DODAK", {}},
                    {"DODOBJ",
                     {.documents = {.sortColumn = "CISLO",
                                    .sortOrder = Qt::DescendingOrder,
                                    .widths = {{"CISLO", 120}, {"Název zboží/2", 240}}},
                      .lines = {.sortColumn = "MNOZSTVI", .sortOrder = Qt::AscendingOrder, .widths = {}},
                      .documentsHeight = 300,
                      .linesHeight = 210}},
                    {"DODOBJVZOR", {}}}};
    return look;
}

class WindowLookTest : public testing::Test {
protected:
    std::string file() const { return (folder_.path() / "melvark" / "window.conf").string(); }

    /// What is read of a file with this content.
    WindowLook readOf(const std::string& content) const {
        std::filesystem::create_directories(folder_.path() / "melvark");
        std::ofstream(file(), std::ios::trunc) << content;
        return readWindowLook(file());
    }

    /// All screens, none of them looked at.
    static WindowLook nothing() {
        return {.place = {}, .screen = {}, .screens = {{"DODAK", {}}, {"DODOBJ", {}}, {"DODOBJVZOR", {}}}};
    }

    TemporaryFolder folder_{"window-look"};
};

TEST_F(WindowLookTest, IsReadAsItWasWritten) {
    ASSERT_TRUE(writeWindowLook(file(), someLook()));
    EXPECT_EQ(readWindowLook(file()), someLook());
}

TEST_F(WindowLookTest, TakesThePlaceOfTheOneBefore) {
    ASSERT_TRUE(writeWindowLook(file(), someLook()));
    WindowLook other = nothing();
    other.screen = "DODAK";
    ASSERT_TRUE(writeWindowLook(file(), other));
    EXPECT_EQ(readWindowLook(file()), other) << "no width, order or place is left";
}

TEST_F(WindowLookTest, AFileThatIsNotThereSaysNothing) {
    EXPECT_EQ(readWindowLook(file()), WindowLook());
}

TEST_F(WindowLookTest, WhatMakesNoSenseIsAsIfItHadNotBeenKept) {
    EXPECT_EQ(readOf("[window]\nleft=1\ntop=2\nwidth=many\nheight=4\n"), nothing());
    EXPECT_EQ(readOf("[window]\nleft=1\ntop=2\nwidth=99999999999\nheight=4\n"), nothing());
    EXPECT_EQ(readOf("[window]\nleft=1\ntop=2\nheight=4\n"), nothing()) << "a number is missing";
    EXPECT_EQ(readOf("[DODAK]\ndocuments\\widths\\A=0\ndocuments\\widths\\B=-5\ndocuments\\widths\\C=1e3\n"
                     "documents\\widths\\D=20001\nlines\\height=x\ndocuments\\order=descending\n"),
              nothing());
    EXPECT_EQ(readOf("[CIZI]\ndocuments\\sort=CISLO\n"), nothing()) << "a screen that is none";
}

TEST_F(WindowLookTest, TheSoundPartOfADamagedFileIsTaken) {
    WindowLook expected = nothing();
    expected.screens["DODAK"].lines.widths["NAZEV"] = 200;
    EXPECT_EQ(readOf("[window\nleft\n=\n[DODAK]\nlines\\widths\\NAZEV=200\nlines\\widths\\CENA=\n"), expected);
}

TEST_F(WindowLookTest, ADamagedFileIsReplaced) {
    readOf("[window\nleft\n=\n\x01x");
    ASSERT_TRUE(writeWindowLook(file(), someLook()));
    EXPECT_EQ(readWindowLook(file()), someLook());
}

TEST_F(WindowLookTest, AFileOfSomethingElseSaysNothing) {
    EXPECT_EQ(readOf(std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16)), nothing());
    EXPECT_EQ(readOf("[window]\nleft=1\ntop=2\nwidth=3\nheight=4\n" + std::string(70000, ';')), WindowLook());
}

TEST_F(WindowLookTest, WhatIsNoFileIsNeitherReadNorReplaced) {
    std::filesystem::create_directories(folder_.path() / "melvark");
    ASSERT_EQ(mkfifo(file().c_str(), 0600), 0);

    EXPECT_EQ(readWindowLook(file()), WindowLook()); // nobody will ever write into the pipe
    EXPECT_FALSE(writeWindowLook(file(), someLook()));
    EXPECT_TRUE(std::filesystem::is_fifo(file()));
}

TEST_F(WindowLookTest, AFolderThatCannotBeMadeIsToldAndNothingElseHappens) {
    std::ofstream(folder_.path() / "melvark") << "a file";
    EXPECT_FALSE(writeWindowLook(file(), someLook()));
}

TEST_F(WindowLookTest, NoOtherFileIsLeftBesideIt) {
    ASSERT_TRUE(writeWindowLook(file(), someLook()));
    ASSERT_TRUE(writeWindowLook(file(), someLook()));
    const std::filesystem::directory_iterator files(folder_.path() / "melvark");
    EXPECT_EQ(std::distance(begin(files), end(files)), 1);
}

TEST(WindowLookFile, LiesInTheUsersConfigurationDirectory) {
    EXPECT_EQ(windowLookFile(), std::string(std::getenv("XDG_CONFIG_HOME")) + "/melvark/window.conf");
}

} // namespace

} // namespace refhost
