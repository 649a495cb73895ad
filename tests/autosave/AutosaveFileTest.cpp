#include "editwin/model/AutosaveFile.h"

#include "editwin/model/AutosaveCell.h"
#include "host/Exceptions.h"
#include "tests/host/FakeHost.h"

#include <gmock/gmock.h>
#include <sstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using namespace melvark;

const std::vector<AnsiString> c_Keys{"SKLADPOL", "MNOZSTVI", "POPIS"};

/// Two lines with an empty cell and one of two lines of text.
TDataGrid twoLines() {
    TDataGrid lines;
    lines.SetColCount(3);
    lines.SetRowCount(2);
    lines.SetCells(0, 0, "Mléko");
    lines.SetCells(0, 1, "Chléb");
    lines.SetCells(1, 0, "2,5");
    lines.SetCells(2, 1, "shora\nzdola");
    return lines;
}

constexpr const char* c_TwoLinesText = "7\n2\nSKLADPOL\nMNOZSTVI\nPOPIS\nMléko\nChléb\n2,5\n\n\n\\shora\\nzdola\n";

AnsiString written(const TDataGrid& lines, std::int32_t documentId = 7) {
    std::ostringstream out;
    WriteAutosave(out, documentId, c_Keys, lines);
    return out.str();
}

std::optional<AutosaveContent> read(const AnsiString& text) {
    std::istringstream in(text);
    return ReadAutosave(in, c_Keys);
}

/// The document and the cells row by row, "7: Mléko|2,5| / Chléb||…"; "refused" for what is no such file.
AnsiString shown(const std::optional<AutosaveContent>& content) {
    if (!content) {
        return "refused";
    }
    AnsiString text = std::to_string(content->DocumentID) + ":";
    for (int row = 0; row < content->Lines.GetRowCount(); ++row) {
        text += row == 0 ? " " : " / ";
        for (int column = 0; column < content->Lines.GetColCount(); ++column) {
            text += (column == 0 ? "" : "|") + content->Lines.GetCells(column, row);
        }
    }
    return text;
}

class AutosaveFile : public testing::Test {
protected:
    FakeHost host_;
    TScopedHost scope_{host_};
};

TEST_F(AutosaveFile, HoldsDocumentRowsKeysAndCellsColumnByColumn) {
    EXPECT_EQ(written(twoLines()), c_TwoLinesText);
}

TEST_F(AutosaveFile, WithoutRowsHoldsTheKeysOnly) {
    EXPECT_EQ(written(TDataGrid()), "7\n0\nSKLADPOL\nMNOZSTVI\nPOPIS\n");
}

TEST_F(AutosaveFile, ComesBackWithoutMarks) {
    const auto content = read(c_TwoLinesText);
    EXPECT_EQ(shown(content), "7: Mléko|2,5| / Chléb||shora\nzdola");
    EXPECT_FALSE(content->Lines.GetModified(0, 0));
}

TEST_F(AutosaveFile, WithoutRowsIsReadAsOneEmptyRow) {
    EXPECT_EQ(shown(read("7\n0\nSKLADPOL\nMNOZSTVI\nPOPIS\n")), "7: ||");
}

TEST_F(AutosaveFile, EachBlockGoesToTheColumnThatItsKeyNames) {
    EXPECT_EQ(shown(read("7\n2\nPOPIS\nSKLADPOL\nMNOZSTVI\np0\np1\ns0\ns1\nm0\nm1\n")), "7: s0|m0|p0 / s1|m1|p1");
}

TEST_F(AutosaveFile, KeepsTheIdentifiersOfAllDocuments) {
    for (const std::int32_t id : {1, 2147483647, 0, -1}) {
        const auto content = read(written(twoLines(), id));
        ASSERT_TRUE(content);
        EXPECT_EQ(content->DocumentID, id);
    }
}

TEST_F(AutosaveFile, KeysStandAtTheirColumnsPlaces) {
    const std::vector<RColumn> columns{RColumn{.Name = "C", .DataColumn = 2}, RColumn{.Name = "A", .DataColumn = 0},
                                       RColumn{.Name = "B", .DataColumn = 1}};
    EXPECT_THAT(AutosaveKeys(columns), testing::ElementsAre("A", "B", "C"));
}

/// More than one block of the writer's.
constexpr int c_ManyRows = 30'000;

TEST_F(AutosaveFile, OneCellThatIsMarkedChangesNoOtherWhereverItStands) {
    for (const AnsiString& cell : {AnsiString("a\nb"), AnsiString("a\rb"), AnsiString("a\0b", 3), AnsiString(R"(\n)"),
                                   AnsiString("k\xC5"), AnsiString("\xC5")}) {
        for (const int at : {0, 1, c_ManyRows / 2, c_ManyRows - 1}) {
            TDataGrid lines;
            lines.SetColCount(3);
            lines.SetRowCount(c_ManyRows);
            for (int row = 0; row < c_ManyRows; ++row) {
                lines.SetCells(0, row, row == at ? cell : "kůň " + std::to_string(row));
            }
            lines.SetCells(2, c_ManyRows - 2, "the last but one");
            AnsiString marked;
            AppendAutosaveCell(marked, cell);
            AnsiString wanted = "7\n" + std::to_string(c_ManyRows) + "\nSKLADPOL\nMNOZSTVI\nPOPIS\n";
            for (int row = 0; row < c_ManyRows; ++row) {
                wanted += (row == at ? marked : "kůň " + std::to_string(row)) + "\n";
            }
            wanted += AnsiString(2 * c_ManyRows - 2, '\n') + "the last but one\n\n";
            ASSERT_TRUE(written(lines) == wanted) << at;
            const auto content = read(wanted);
            ASSERT_TRUE(content);
            EXPECT_EQ(content->Lines.GetCells(0, at), cell);
            EXPECT_EQ(content->Lines.GetCells(0, c_ManyRows - 1), at == c_ManyRows - 1 ? cell : "kůň 29999");
            EXPECT_EQ(content->Lines.GetCells(2, c_ManyRows - 2), "the last but one");
        }
    }
}

struct BadFile {
    const char* name;
    const char* text;
};

class BadAutosaveFile : public testing::TestWithParam<BadFile> {};

TEST_P(BadAutosaveFile, IsRefused) {
    EXPECT_EQ(shown(read(GetParam().text)), "refused");
}

#define KEYS "SKLADPOL\nMNOZSTVI\nPOPIS\n"

INSTANTIATE_TEST_SUITE_P(
    Cases, BadAutosaveFile,
    testing::Values(BadFile{"Empty", ""}, BadFile{"OneLine", "7\n"}, BadFile{"NoDocument", "\n1\n" KEYS "a\nb\nc\n"},
                    BadFile{"DocumentInWords", "seven\n1\n" KEYS "a\nb\nc\n"},
                    BadFile{"DocumentWithABlank", "7 \n1\n" KEYS "a\nb\nc\n"},
                    BadFile{"DocumentWithASign", "+7\n1\n" KEYS "a\nb\nc\n"},
                    BadFile{"DocumentTooLarge", "2147483648\n1\n" KEYS "a\nb\nc\n"},
                    BadFile{"ByteOrderMark", "\xEF\xBB\xBF"
                                             "7\n1\n" KEYS "a\nb\nc\n"},
                    BadFile{"NegativeCount", "7\n-1\n" KEYS}, BadFile{"NegativeZero", "7\n-0\n" KEYS},
                    BadFile{"CountInWords", "7\none\n" KEYS "a\nb\nc\n"}, BadFile{"EmptyCount", "7\n\n" KEYS},
                    BadFile{"FractionAsCount", "7\n1.0\n" KEYS "a\nb\nc\n"},
                    BadFile{"HugeCount", "7\n2147483647\n" KEYS "a\nb\nc\n"},
                    BadFile{"CountBeyondAllNumbers", "7\n99999999999999999999\n" KEYS "a\nb\nc\n"},
                    BadFile{"OneMoreThanTheMostRows", "7\n1000001\n" KEYS "a\nb\nc\n"},
                    BadFile{"MissingKey", "7\n1\nSKLADPOL\nMNOZSTVI\na\nb\nc\n"},
                    BadFile{"UnknownKey", "7\n1\nSKLADPOL\nMNOZSTVI\nCENA\na\nb\nc\n"},
                    BadFile{"KeyInLowerCase", "7\n1\nSKLADPOL\nMNOZSTVI\npopis\na\nb\nc\n"},
                    BadFile{"RepeatedKey", "7\n1\nSKLADPOL\nMNOZSTVI\nMNOZSTVI\na\nb\nc\n"},
                    BadFile{"OneKeyTooMany", "7\n1\n" KEYS "KOMENTAR\na\nb\nc\n"},
                    BadFile{"OneLineTooFew", "7\n1\n" KEYS "a\nb\n"},
                    BadFile{"OneLineTooMany", "7\n1\n" KEYS "a\nb\nc\n\n"},
                    BadFile{"BytesBehindTheLastLine", "7\n1\n" KEYS "a\nb\nc\nd"},
                    BadFile{"LastLineWithoutItsEnd", "7\n1\n" KEYS "a\nb\nc"},
                    BadFile{"LineEndsOfAnotherSystem", "7\r\n1\r\nSKLADPOL\r\nMNOZSTVI\r\nPOPIS\r\na\r\nb\r\nc\r\n"},
                    BadFile{"AnotherEncoding", "7\n1\n" KEYS "Ml\xE9ko\nb\nc\n"},
                    BadFile{"StrayEscape", "7\n1\n" KEYS "\\q\nb\nc\n"}),
    [](const auto& row) { return row.param.name; });

/// Gives a header, then the same byte for longer than any file may be, and counts how much was taken.
class HeaderAndEndlessBytes : public std::streambuf {
public:
    HeaderAndEndlessBytes(std::string header, char byte) : header_(std::move(header)), byte_(byte) {}
    std::streamsize taken = 0;

protected:
    std::streamsize xsgetn(char* text, std::streamsize count) override {
        if (taken > 16 << 20) {
            return 0;
        }
        std::fill_n(text, count, byte_);
        header_.copy(text, static_cast<std::size_t>(count));
        header_.clear();
        taken += count;
        return count;
    }

private:
    std::string header_;
    char byte_;
};

TEST_F(AutosaveFile, ALineOfAHundredMegabytesIsRefusedWithinTheFirstTwo) {
    for (const char* header : {"", "7\n", "7\n1\n", "7\n1\n" KEYS, "7\n1\n" KEYS "a\nb\n"}) {
        HeaderAndEndlessBytes bytes(header, '1');
        std::istream in(&bytes);
        EXPECT_FALSE(ReadAutosave(in, c_Keys)) << header;
        EXPECT_LE(bytes.taken, 2 << 20) << header;
    }
}

TEST_F(AutosaveFile, EmptyRowsWithoutEndAreRefusedBehindTheClaimedCount) {
    HeaderAndEndlessBytes bytes("7\n1000000\n" KEYS, '\n');
    std::istream in(&bytes);
    EXPECT_FALSE(ReadAutosave(in, c_Keys));
    EXPECT_LE(bytes.taken, 4 << 20);
}

/// By how much reading the text raises the most memory that a process of its own ever held, in kilobytes.
long memoryToRead(const AnsiString& text) {
    int result[2];
    EXPECT_EQ(pipe(result), 0);
    const pid_t process = fork();
    if (process == 0) {
        const auto most = [] {
            rusage usage{};
            getrusage(RUSAGE_SELF, &usage);
            return usage.ru_maxrss;
        };
        const long before = most();
        read(text);
        const long grown = most() - before;
        _exit(::write(result[1], &grown, sizeof(grown)) == sizeof(grown) ? 0 : 1);
    }
    long grown = -1;
    EXPECT_EQ(::read(result[0], &grown, sizeof(grown)), sizeof(grown));
    EXPECT_EQ(waitpid(process, nullptr, 0), process);
    close(result[0]);
    close(result[1]);
    return grown;
}

TEST_F(AutosaveFile, AShortFileThatClaimsAMillionRowsTakesLittleMemory) {
    const long grown = memoryToRead("7\n1000000\n" KEYS "a\nb\n");
    EXPECT_GE(grown, 0);
    EXPECT_LT(grown, 8 * 1024);
}

TEST_F(AutosaveFile, AMillionEmptyRowsTakeLittleMemory) {
    const AnsiString text = "7\n1000000\n" KEYS + AnsiString(3'000'000, '\n');
    ASSERT_TRUE(read(text));
    const long grown = memoryToRead(text);
    EXPECT_GE(grown, 0);
    EXPECT_LT(grown, 16 * 1024);
}

TEST_F(AutosaveFile, ACellThatCouldNotBeReadAgainIsNotWritten) {
    TDataGrid lines = twoLines();
    lines.SetCells(2, 0, AnsiString(c_LongestAutosaveLine, 'x'));
    EXPECT_TRUE(read(written(lines)));
    lines.SetCells(2, 0, AnsiString(c_LongestAutosaveLine + 1, 'x'));
    EXPECT_EQ(messageOf<EInOutError>([&] { written(lines); }),
              "Rozepsaná práce se průběžně neukládá, je příliš velká. Uložte ji raději hned.");
    lines.SetCells(2, 0, AnsiString(c_LongestAutosaveLine / 2, '\n')); // each takes two bytes, and the marker one
    EXPECT_THROW(written(lines), EInOutError);
}

TEST_F(AutosaveFile, MoreRowsThanCouldBeReadAgainAreNotWritten) {
    TDataGrid lines = twoLines();
    lines.SetRowCount(c_MostAutosaveRows + 1);
    EXPECT_THROW(written(lines), EInOutError);
}

} // namespace
