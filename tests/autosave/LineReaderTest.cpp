#include "editwin/model/LineReader.h"

#include <gmock/gmock.h>
#include <sstream>
#include <stdexcept>

namespace {

using melvark::LineReader;
using testing::ElementsAre;

/// All lines, then "END", or "BROKEN" when something is left that is no line.
std::vector<std::string> linesOf(const std::string& text, std::size_t longest = 1000) {
    std::stringbuf source(text);
    LineReader reader(source, longest);
    std::vector<std::string> lines;
    while (!reader.IsAtEnd()) {
        const auto line = reader.Next();
        if (!line) {
            lines.emplace_back("BROKEN");
            return lines;
        }
        lines.emplace_back(*line);
    }
    lines.emplace_back("END");
    return lines;
}

/// Gives the same byte for longer than any line may be, and counts how much was taken.
class Endless : public std::streambuf {
public:
    std::streamsize taken = 0;

protected:
    std::streamsize xsgetn(char* text, std::streamsize count) override {
        if (taken > 8 << 20) {
            return 0;
        }
        std::fill_n(text, count, 'x');
        taken += count;
        return count;
    }
};

TEST(LineReader, PartsAStreamAtItsLineFeeds) {
    EXPECT_THAT(linesOf("a\n\nb c\r\n"), ElementsAre("a", "", "b c\r", "END"));
    EXPECT_THAT(linesOf(""), ElementsAre("END"));
}

TEST(LineReader, ALastLineWithoutItsEndIsNone) {
    EXPECT_THAT(linesOf("a\nb"), ElementsAre("a", "BROKEN"));
}

TEST(LineReader, LinesGoOnFromOneBlockToTheNext) {
    const std::string text(100'000, 'y');
    EXPECT_THAT(linesOf("a\n" + text + "\n" + text + "\nb\n", 200'000), ElementsAre("a", text, text, "b", "END"));
}

TEST(LineReader, ALineIsAsLongAsAllowedAndNoLonger) {
    EXPECT_THAT(linesOf("12345\n", 5), ElementsAre("12345", "END"));
    EXPECT_THAT(linesOf("123456\n", 5), ElementsAre("BROKEN"));
}

TEST(LineReader, AnEndlessLineIsRefusedSoon) {
    Endless source;
    LineReader reader(source, 100'000);
    EXPECT_EQ(reader.Next(), std::nullopt);
    EXPECT_LE(source.taken, 1 << 18);
}

TEST(LineReader, WhatTheSourceThrowsPasses) {
    struct Broken : std::streambuf {
        std::streamsize xsgetn(char*, std::streamsize) override { throw std::runtime_error("the disk is broken"); }
    } source;
    LineReader reader(source, 1000);
    EXPECT_THROW(reader.Next(), std::runtime_error);
}

} // namespace
