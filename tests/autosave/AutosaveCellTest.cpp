#include "editwin/model/AutosaveCell.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using namespace melvark;
using namespace std::string_literals;

struct CellCase {
    const char* name;
    AnsiString cell;
    AnsiString line;
};

AnsiString lineOf(const AnsiString& cell) {
    AnsiString line = "before ";
    AppendAutosaveCell(line, cell);
    return line.substr(7);
}

class AutosaveCells : public testing::TestWithParam<CellCase> {};

TEST_P(AutosaveCells, ComeBackFromTheirLine) {
    EXPECT_EQ(lineOf(GetParam().cell), GetParam().line);
    EXPECT_EQ(AutosaveCell(GetParam().line), GetParam().cell);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, AutosaveCells,
    testing::Values(CellCase{"Empty", "", ""}, CellCase{"Number", "12,50", "12,50"},
                    CellCase{"Blanks", "  a  ", "  a  "}, CellCase{"Tab", "a\tb", "a\tb"},
                    CellCase{"Czech", "Žluťoučký kůň", "Žluťoučký kůň"},
                    CellCase{"MarkerInside", R"(a\nb)", R"(a\nb)"}, // begins with something else: as it is
                    CellCase{"MarkerInFront", R"(\n)", R"(\\\n)"}, CellCase{"MarkerAlone", R"(\)", R"(\\\)"},
                    CellCase{"LineFeed", "a\nb", R"(\a\nb)"}, CellCase{"Return", "a\rb", R"(\a\rb)"},
                    CellCase{"LineEndInCzech", "kůň\r\n", R"(\kůň\r\n)"}, CellCase{"Nul", "a\0b"s, R"(\a\0b)"},
                    CellCase{"MarkerAndLineFeed", "a\\nb\nc", R"(\a\\nb\nc)"},
                    CellCase{"StrayByte", "a\xE8z", R"(\a\xE8z)"}, // a table of another encoding
                    CellCase{"CutCharacter", "k\xC5", R"(\k\xC5)"},
                    CellCase{"LineSeparatorOfUnicode", "a\xE2\x80\xA8z", "a\xE2\x80\xA8z"}), // parts no lines here
    [](const auto& row) { return row.param.name; });

TEST(AutosaveCell, EveryCellOfTwoBytesComesBackAsOneLine) {
    for (int first = 0; first < 256; ++first) {
        for (int second = 0; second < 256; ++second) {
            const AnsiString cell{static_cast<char>(first), static_cast<char>(second)};
            const AnsiString line = lineOf(cell);
            EXPECT_EQ(line.find_first_of("\n\r\0"s), AnsiString::npos) << first << " " << second;
            EXPECT_EQ(AutosaveCell(line), cell) << first << " " << second;
        }
    }
}

TEST(AutosaveCell, ALineThatNoCellIsWrittenAsIsNone) {
    const AnsiString lines[] = {
        "a\rb",        // written with a marker
        "a\0b"s,       // likewise
        "a\xE8z",      // another encoding
        R"(\)",        // marked without need
        R"(\abc)",     // likewise
        R"(\a\)",      // ends within an escape
        R"(\a\tb)",    // no escape of ours
        R"(\a\x4)",    // half a byte
        R"(\a\x4Gb)",  // no digit
        R"(\a\x41b)",  // a byte that needs no escape
        R"(\a\xe8z)",  // ours are upper case
        "\\a\\n\xE8z", // marked, and all the same of another encoding
    };
    for (const AnsiString& line : lines) {
        EXPECT_EQ(AutosaveCell(line), std::nullopt) << line;
    }
}

} // namespace
