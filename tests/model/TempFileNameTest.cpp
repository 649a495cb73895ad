#include "editwin/model/TempFileName.h"

#include <gtest/gtest.h>

namespace {

TEST(TempFileName, IsMadeOfDirectoryUserEditorAndSource) {
    EXPECT_EQ(melvark::TempFileName("/tmp/", "novak", "DODAK", "SABLONA"),
              "/tmp/melvarkeditor_novak_DODAK_SABLONA.dat");
}

TEST(TempFileName, DirectoryIsMadeToEndWithADelimiter) {
    EXPECT_EQ(melvark::TempFileName("/home/novak/tmp", "novak", "DODAK", "DODOBJ"),
              "/home/novak/tmp/melvarkeditor_novak_DODAK_DODOBJ.dat");
}

TEST(TempFileName, DiffersForEachUserEditorAndSource) {
    const AnsiString name = melvark::TempFileName("/tmp/", "novak", "DODAK", "DODAK");

    EXPECT_NE(melvark::TempFileName("/tmp/", "svoboda", "DODAK", "DODAK"), name);
    EXPECT_NE(melvark::TempFileName("/tmp/", "novak", "DODOBJ", "DODAK"), name);
    EXPECT_NE(melvark::TempFileName("/tmp/", "novak", "DODAK", "SABLONA"), name);
}

} // namespace
