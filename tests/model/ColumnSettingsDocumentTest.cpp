#include "editwin/model/ColumnSettingsDocument.h"

#include "tests/model/ColumnsForTests.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace {

using melvark::ReadColumnSettings;
using melvark::WriteColumnSettings;

/// KEY# A B (C): the columns as an editor was built.
std::vector<RColumn> builtIn() {
    std::vector<RColumn> columns = {keyColumn("KEY", 0), shownColumn("A", 1), shownColumn("B", 2),
                                    hiddenColumn("C", 3)};
    for (RColumn& column : columns) {
        column.Caption = "caption of " + column.Name;
        column.Hint = "hint of " + column.Name;
        column.Width = 60;
        column.DataType = cdtFlt;
    }
    columns[2].Align = caRight;
    return columns;
}

/// A document that names columns and says nothing else of them.
AnsiString documentNaming(std::initializer_list<const char*> names) {
    AnsiString columns;
    for (const char* name : names) {
        columns += AnsiString("<column><name>") + name + "</name></column>";
    }
    return "<settings><columns>" + columns + "</columns></settings>";
}

/// A document that says `children` of column B.
AnsiString documentOfB(std::string_view children) {
    return "<settings><columns><column><name>B</name>" + AnsiString(children) + "</column></columns></settings>";
}

RColumn readB(std::string_view children) {
    return ReadColumnSettings(documentOfB(children), builtIn(), builtIn()).Columns.front();
}

/// Everything that a document may change of a column.
AnsiString shapeOf(const RColumn& column) {
    return column.Caption + "|" + column.Hint + "|align " + std::to_string(column.Align) + "|visible " +
           std::to_string(column.Visible) + "|editable " + std::to_string(column.Editable) + "|width " +
           std::to_string(column.Width);
}

constexpr const char* c_BuiltInShapeOfB = "caption of B|hint of B|align 2|visible 1|editable 1|width 60";

TEST(ColumnSettingsDocument, EveryColumnIsWrittenWithItsSevenChildrenInOrder) {
    RColumn vat = keyColumn("DPH", 0);
    vat.Caption = "Sazba & daň";
    vat.Hint = "<%>";
    RColumn price = shownColumn("CENA", 1);
    price.Caption = "Cena";
    price.Hint = "za kus";
    price.Align = caRight;
    price.Editable = eManual;
    price.Width = 55;
    RColumn note = shownColumn("POPIS", 2);
    note.Caption = "Popis";
    note.Hint = "volný text";
    note.Align = caCenter;
    note.Editable = eNone;

    const AnsiString document = WriteColumnSettings(std::vector<RColumn>{vat, price, note}, std::nullopt);

    EXPECT_TRUE(
        document.ends_with("<settings><columns>"
                           "<column><name>DPH</name><caption>Sazba &amp; daň</caption>"
                           "<hint>&lt;%&gt;</hint><align>L</align><visible>0</visible>"
                           "<editable>AUTO</editable><width>100</width></column>"
                           "<column><name>CENA</name><caption>Cena</caption><hint>za kus</hint><align>R</align>"
                           "<visible>1</visible><editable>MAN</editable><width>55</width></column>"
                           "<column><name>POPIS</name><caption>Popis</caption><hint>volný text</hint><align>C</align>"
                           "<visible>1</visible><editable>NONE</editable><width>100</width></column>"
                           "</columns></settings>"))
        << document;
}

TEST(ColumnSettingsDocument, SwitchIsWrittenFirstAndOnlyWhenTheEditorShowsIt) {
    EXPECT_TRUE(WriteColumnSettings({}, true).find("<settings><prepocet>1</prepocet><columns") != AnsiString::npos);
    EXPECT_TRUE(WriteColumnSettings({}, false).find("<settings><prepocet>0</prepocet><columns") != AnsiString::npos);
    EXPECT_EQ(WriteColumnSettings({}, std::nullopt).find("prepocet"), AnsiString::npos);
}

TEST(ColumnSettingsDocument, ColumnOfAnUnlistedStateIsWrittenAsLeftAndNone) {
    RColumn odd = shownColumn("A", 0);
    odd.Align = static_cast<TColumnAlign>(9);
    odd.Editable = static_cast<TEditable>(9);

    const AnsiString document = WriteColumnSettings(std::vector<RColumn>{odd}, std::nullopt);

    EXPECT_NE(document.find("<align>L</align>"), AnsiString::npos);
    EXPECT_NE(document.find("<editable>NONE</editable>"), AnsiString::npos);
}

TEST(ColumnSettingsDocument, WhatIsWrittenIsReadBack) {
    std::vector<RColumn> shaped = {builtIn()[3], builtIn()[1], builtIn()[0], builtIn()[2]};
    shaped[0].Visible = true;
    shaped[0].Caption = " řádek\njeden\tdva & <tři> ";
    shaped[0].Hint = " ";
    shaped[0].Align = caCenter;
    shaped[0].Editable = eNone;
    shaped[0].Width = 1234;
    shaped[1].Editable = eManual;

    const auto read = ReadColumnSettings(WriteColumnSettings(shaped, false), builtIn(), builtIn());

    EXPECT_EQ(read.Recalculation, false);
    EXPECT_EQ(layoutOf(read.Columns), "C A KEY# B");
    EXPECT_EQ(dataColumnsOf(read.Columns), "3 1 0 2");
    for (std::size_t index = 0; index < shaped.size(); ++index) {
        EXPECT_EQ(shapeOf(read.Columns[index]), shapeOf(shaped[index]));
    }
}

struct OrderRow {
    const char* remark;
    AnsiString document;
    const char* layout;
};

const OrderRow orderRows[] = {
    {"named columns first, in the document's order, then the rest in built-in order", documentNaming({"C", "A"}),
     "(C) A KEY# B"},
    {"all of them", documentNaming({"C", "B", "A", "KEY"}), "(C) B A KEY#"},
    {"none of them", documentNaming({}), "KEY# A B (C)"},
    {"an unknown name is skipped", documentNaming({"X", "B"}), "B KEY# A (C)"},
    {"names are compared with regard to case", documentNaming({"b", "B"}), "B KEY# A (C)"},
    {"a repeat of a later placed column is skipped", documentNaming({"A", "B", "B"}), "A B KEY# (C)"},
    {"the column placed first is placed again; the last of the rest has no room", documentNaming({"A", "A", "B"}),
     "A A B KEY#"},
    {"the first repeat counts from then on, a second one is skipped", documentNaming({"A", "A", "A"}), "A A KEY# B"},
    {"the repeat may come late", documentNaming({"A", "B", "A"}), "A B A KEY#"},
    {"a repeat in a list that is full is skipped", documentNaming({"A", "B", "C", "KEY", "A"}), "A B (C) KEY#"},
    {"a name for which a repeat left no room is skipped", documentNaming({"A", "A", "B", "C", "KEY"}), "A A B (C)"},
    {"an unknown name before it does not make another column the first", documentNaming({"X", "A", "A"}), "A A KEY# B"},
    {"a column without a name is skipped",
     "<settings><columns><column><width>5</width></column><column><name>B</name></column></columns></settings>",
     "B KEY# A (C)"},
    {"elements of other names are skipped",
     "<settings><columns><row><name>C</name></row><column><name>B</name></column></columns></settings>",
     "B KEY# A (C)"},
    {"columns outside their list are not read", "<settings><column><name>C</name></column><sort/><columns/></settings>",
     "KEY# A B (C)"},
    {"two lists go on one after the other",
     "<settings><columns><column><name>C</name></column></columns>"
     "<columns><column><name>B</name></column></columns></settings>",
     "(C) B KEY# A"},
    {"a layout of lines and blanks",
     "<settings>\n  <columns>\n    <column>\n      <name>B</name>\n    </column>\n  </columns>\n</settings>",
     "B KEY# A (C)"},
    {"another document", "<window><columns><column><name>C</name></column></columns></window>", "KEY# A B (C)"},
    {"no document", "", "KEY# A B (C)"},
    {"a document cut off is not half-read", "<settings><columns><column><name>C</name></column>", "KEY# A B (C)"},
};

TEST(ColumnSettingsDocument, NamedColumnsComeFirstAndTheRestFollows) {
    for (const OrderRow& row : orderRows) {
        SCOPED_TRACE(row.remark);
        EXPECT_EQ(layoutOf(ReadColumnSettings(row.document, builtIn(), builtIn()).Columns), row.layout);
    }
}

struct ShapeRow {
    const char* remark;
    const char* children;
    const char* shape;
};

const ShapeRow shapeRows[] = {
    {"nothing said: as built", "", c_BuiltInShapeOfB},
    {"texts", "<caption>Cena</caption><hint>za kus</hint>", "Cena|za kus|align 2|visible 1|editable 1|width 60"},
    {"empty texts are texts", "<caption/><hint></hint>", "||align 2|visible 1|editable 1|width 60"},
    {"left", "<align>L</align>", "caption of B|hint of B|align 0|visible 1|editable 1|width 60"},
    {"centre", "<align>C</align>", "caption of B|hint of B|align 1|visible 1|editable 1|width 60"},
    {"an unknown alignment stays as built", "<align>r</align>", c_BuiltInShapeOfB},
    {"an empty alignment too", "<align/>", c_BuiltInShapeOfB},
    {"hidden", "<visible>0</visible>", "caption of B|hint of B|align 2|visible 0|editable 1|width 60"},
    {"an unknown visibility hides", "<visible>yes</visible>",
     "caption of B|hint of B|align 2|visible 0|editable 1|width 60"},
    {"by selection", "<editable>MAN</editable>", "caption of B|hint of B|align 2|visible 1|editable 2|width 60"},
    {"not editable", "<editable>NONE</editable>", "caption of B|hint of B|align 2|visible 1|editable 0|width 60"},
    {"an unknown editability stays as built", "<editable>auto</editable>", c_BuiltInShapeOfB},
    {"a width", "<width>55</width>", "caption of B|hint of B|align 2|visible 1|editable 1|width 55"},
    {"a width that is no integer is 100", "<width>5,5</width>",
     "caption of B|hint of B|align 2|visible 1|editable 1|width 100"},
    {"an empty width is 100, not that of the column", "<width/>",
     "caption of B|hint of B|align 2|visible 1|editable 1|width 100"},
    {"a width beyond 32 bits is 100", "<width>99999999999</width>",
     "caption of B|hint of B|align 2|visible 1|editable 1|width 100"},
    {"the first of two", "<width>55</width><hint>za kus</hint><width>66</width>",
     "caption of B|za kus|align 2|visible 1|editable 1|width 55"},
    {"foreign children are passed over", "<colour>red</colour>", c_BuiltInShapeOfB},
};

TEST(ColumnSettingsDocument, ColumnTakesWhatTheDocumentSaysAndKeepsTheRestAsBuilt) {
    for (const ShapeRow& row : shapeRows) {
        SCOPED_TRACE(row.remark);
        EXPECT_EQ(shapeOf(readB(row.children)), row.shape);
    }
}

TEST(ColumnSettingsDocument, ColumnBuiltOtherwiseCanBeShownAlignedRightAndOpenedAutomatically) {
    std::vector<RColumn> defaults = builtIn();
    defaults[2].Align = caLeft;
    defaults[2].Visible = false;
    defaults[2].Editable = eNone;

    const auto read = ReadColumnSettings(documentOfB("<align>R</align><visible>1</visible><editable>AUTO</editable>"),
                                         defaults, defaults);

    EXPECT_EQ(shapeOf(read.Columns.front()), c_BuiltInShapeOfB);
}

TEST(ColumnSettingsDocument, TypeFormatAndCallbackAlwaysComeFromTheBuiltInColumn) {
    std::vector<RColumn> defaults = builtIn();
    defaults[2].DisplayFormat = "%m";
    defaults[2].Callback = [](int, int, const AnsiString&) { return true; };
    std::vector<RColumn> previous = defaults;
    previous[2].DisplayFormat = "%f";
    previous[2].DataType = cdtString;
    previous[2].ColumnType = ctReadOnly;
    previous[2].Callback = nullptr;

    const RColumn column = ReadColumnSettings(documentNaming({"B"}), previous, defaults).Columns.front();

    EXPECT_EQ(column.DisplayFormat, "%m");
    EXPECT_EQ(column.DataType, cdtFlt);
    EXPECT_EQ(column.ColumnType, ctNormal);
    EXPECT_TRUE(column.Callback);
}

TEST(ColumnSettingsDocument, KeyColumnStaysUnseenWhateverTheDocumentSays) {
    const auto read = ReadColumnSettings("<settings><columns><column><name>KEY</name><visible>1</visible></column>"
                                         "</columns></settings>",
                                         builtIn(), builtIn());
    EXPECT_EQ(layoutOf(read.Columns), "KEY# A B (C)");
}

TEST(ColumnSettingsDocument, FormerLayoutLeavesOnlyItsDataColumns) {
    // given: a layout of another order and other texts, whose columns are bound to other data than they were built with
    std::vector<RColumn> previous = {builtIn()[3], builtIn()[2], builtIn()[1], builtIn()[0]};
    previous[0].DataColumn = 13;
    previous[1].DataColumn = 12;
    previous[1].Caption = "renamed";
    previous[2].DataColumn = 11;

    // when: one column is named, the others are filled in
    const auto read = ReadColumnSettings(documentNaming({"B"}), previous, builtIn());

    // then
    EXPECT_EQ(layoutOf(read.Columns), "B KEY# A (C)");
    EXPECT_EQ(dataColumnsOf(read.Columns), "12 0 11 13");
    EXPECT_EQ(read.Columns[0].Caption, "caption of B");
}

TEST(ColumnSettingsDocument, BadDocumentKeepsTheDataColumnsToo) {
    std::vector<RColumn> previous = builtIn();
    previous[1].DataColumn = 11;

    EXPECT_EQ(dataColumnsOf(ReadColumnSettings("not a document", previous, builtIn()).Columns), "0 11 2 3");
}

TEST(ColumnSettingsDocument, ColumnThatTheFormerLayoutLackedKeepsItsBuiltInData) {
    // given: a layout in which a repeat has pushed column C out
    const auto repeated = ReadColumnSettings(documentNaming({"A", "A"}), builtIn(), builtIn()).Columns;
    ASSERT_EQ(layoutOf(repeated), "A A KEY# B");

    // when: the next document names it again
    const auto read = ReadColumnSettings(documentNaming({"C"}), repeated, builtIn());

    // then
    EXPECT_EQ(layoutOf(read.Columns), "(C) KEY# A B");
    EXPECT_EQ(dataColumnsOf(read.Columns), "3 0 1 2");
}

TEST(ColumnSettingsDocument, SwitchIsReadOnlyWhenTheDocumentNamesIt) {
    struct Row {
        const char* remark;
        const char* document;
        std::optional<bool> recalculation;
    };
    const Row rows[] = {
        {"on", "<settings><prepocet>1</prepocet></settings>", true},
        {"off", "<settings><prepocet>0</prepocet></settings>", false},
        {"any other text is off", "<settings><prepocet>yes</prepocet></settings>", false},
        {"behind the columns", "<settings><columns/><prepocet>1</prepocet></settings>", true},
        {"the last one counts", "<settings><prepocet>1</prepocet><prepocet>0</prepocet></settings>", false},
        {"not named", "<settings><columns/></settings>", std::nullopt},
        {"in another document", "<window><prepocet>1</prepocet></window>", std::nullopt},
    };

    for (const Row& row : rows) {
        SCOPED_TRACE(row.remark);
        EXPECT_EQ(ReadColumnSettings(row.document, builtIn(), builtIn()).Recalculation, row.recalculation);
    }
}

} // namespace
