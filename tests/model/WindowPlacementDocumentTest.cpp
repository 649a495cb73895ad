#include "editwin/model/WindowPlacementDocument.h"

#include <gtest/gtest.h>

namespace {

using melvark::ReadWindowPlacement;
using melvark::WindowPlacement;
using melvark::WriteWindowPlacement;

const WindowPlacement current{.Left = 100, .Top = 200, .Width = 790, .Height = 400};

/// "left top width height", then " maximized" or " normal" when that is said; or "nothing".
AnsiString placementText(const std::optional<WindowPlacement>& placement) {
    if (!placement) {
        return "nothing";
    }
    AnsiString text;
    for (const int number : {placement->Left, placement->Top, placement->Width, placement->Height}) {
        text += (text.empty() ? "" : " ") + std::to_string(number);
    }
    return text + (!placement->Maximized ? "" : *placement->Maximized ? " maximized" : " normal");
}

TEST(WindowPlacementDocument, ElementsStandInTheirFixedOrder) {
    const AnsiString document =
        WriteWindowPlacement({.Left = -8, .Top = 0, .Width = 1024, .Height = 768, .Maximized = true});

    EXPECT_TRUE(document.ends_with("<window><left>-8</left><top>0</top><width>1024</width><height>768</height>"
                                   "<maximized>1</maximized></window>"))
        << document;
}

TEST(WindowPlacementDocument, WindowThatIsNotMaximisedIsWrittenAsZero) {
    EXPECT_NE(WriteWindowPlacement({.Maximized = false}).find("<maximized>0</maximized>"), AnsiString::npos);
}

TEST(WindowPlacementDocument, WhatIsWrittenIsReadBack) {
    const WindowPlacement written{.Left = -8, .Top = 31, .Width = 1024, .Height = 768, .Maximized = true};
    EXPECT_EQ(ReadWindowPlacement(WriteWindowPlacement(written), current), written);
}

struct ReadingRow {
    const char* remark;
    const char* document;
    const char* placement;
};

const ReadingRow readingRows[] = {
    {"everything",
     "<window><left>1</left><top>2</top><width>803</width><height>404</height><maximized>1</maximized></window>",
     "1 2 803 404 maximized"},
    {"a layout of lines and blanks", "<window>\n  <left>1</left>\n  <top>2</top>\n</window>", "1 2 790 400"},
    {"only maximized", "<window><maximized>1</maximized></window>", "100 200 790 400 maximized"},
    {"only not maximized", "<window><maximized>0</maximized></window>", "100 200 790 400 normal"},
    {"missing elements leave what is", "<window><top>2</top><height>404</height></window>", "100 2 790 404"},
    {"an empty window", "<window/>", "100 200 790 400"},
    {"bad numbers leave what is",
     "<window><left>1,5</left><top></top><width>many</width><height>404px</height></window>", "100 200 790 400"},
    {"a number out of range", "<window><left>99999999999</left></window>", "100 200 790 400"},
    {"a window may stand left of the main screen", "<window><left>-1280</left></window>", "-1280 200 790 400"},
    {"sizes are not limited here; the form's constraints do that", "<window><width>5</width></window>",
     "100 200 5 400"},
    {"any other text of maximized means normal", "<window><maximized>true</maximized></window>",
     "100 200 790 400 normal"},
    {"foreign elements are passed over", "<window><colour>red</colour><left>1</left></window>", "1 200 790 400"},
    {"another document", "<settings><left>1</left></settings>", "nothing"},
    {"the root's name is compared with regard to case", "<Window><left>1</left></Window>", "nothing"},
    {"no document", "", "nothing"},
    {"a text that is none", "left=1", "nothing"},
    {"a document cut off", "<window><left>1</left>", "nothing"},
};

TEST(WindowPlacementDocument, ReadingTakesWhatTheDocumentSaysAndLeavesTheRest) {
    for (const ReadingRow& row : readingRows) {
        SCOPED_TRACE(row.remark);
        EXPECT_EQ(placementText(ReadWindowPlacement(row.document, current)), row.placement);
    }
}

TEST(WindowPlacementDocument, WithoutTheElementNothingIsSaidOfTheState) {
    WindowPlacement maximized = current;
    maximized.Maximized = true;

    EXPECT_EQ(placementText(ReadWindowPlacement("<window/>", maximized)), "100 200 790 400");
}

} // namespace
