#include "host/XMLTag.h"

#include "tests/host/FakeHost.h"

#include <gtest/gtest.h>
#include <random>

namespace {

const AnsiString declaration = R"(<?xml version="1.0" encoding="UTF-8"?>)";

/// A tree as one text: "settings(columns(name=MNOZSTVI,width=60))".
AnsiString shown(const TXMLTag* tag) {
    if (tag == nullptr) {
        return "(null)";
    }
    AnsiString all = tag->GetName();
    if (!tag->GetValue().empty()) {
        all += "=" + tag->GetValue();
    }
    for (std::size_t i = 0; i < tag->GetTagsCount(); ++i) {
        all += (i == 0 ? "(" : ",") + shown(&tag->GetTag(i));
    }
    return tag->GetTagsCount() == 0 ? all : all + ")";
}

AnsiString parsed(std::string_view document, TXMLBlanks blanks = TXMLBlanks::Drop) {
    return shown(ParseXML(document, blanks).get());
}

/// What comes back of a text that was written and read.
AnsiString roundTrip(const AnsiString& value) {
    TXMLTag root("settings");
    root.CreateTag("caption").SetValue(value);
    const auto read = ParseXML(OutputXMLStr(root));
    return read == nullptr ? "(not well-formed)" : read->GetTag(0).GetValue();
}

AnsiString nested(std::size_t depth) {
    AnsiString document;
    for (std::size_t i = 0; i < depth; ++i) {
        document += "<a>";
    }
    for (std::size_t i = 0; i < depth; ++i) {
        document += "</a>";
    }
    return document;
}

TEST(XMLTag, OwnsItsChildrenInOrder) {
    TXMLTag root("settings");
    root.CreateTag("prepocet").SetValue("1");
    TXMLTag& columns = root.CreateTag("columns");
    columns.CreateTag("column").SetValue("a");
    columns.CreateTag("column").SetValue("b");
    EXPECT_EQ(shown(&root), "settings(prepocet=1,columns(column=a,column=b))");
}

TEST(XMLTag, FindsTheFirstChildOfAName) {
    TXMLTag root("columns");
    root.CreateTag("column").SetValue("a");
    root.CreateTag("column").SetValue("b");
    ASSERT_NE(root.GetTagByName("column"), nullptr);
    EXPECT_EQ(root.GetTagByName("column")->GetValue(), "a");
    EXPECT_EQ(root.GetTagByName("Column"), nullptr);
    EXPECT_EQ(root.GetTagByName("columns"), nullptr) << "not the node itself";
}

TEST(XMLTag, ChildrenStayWhereTheyAre) {
    TXMLTag root("columns");
    TXMLTag& first = root.CreateTag("column");
    for (int i = 0; i < 100; ++i) {
        root.CreateTag("column");
    }
    EXPECT_EQ(&root.GetTag(0), &first);
}

TEST(XMLTag, DestroysADeepTreeWithoutRecursion) {
    TXMLTag root("a");
    TXMLTag* tag = &root;
    for (int i = 0; i < 500'000; ++i) {
        tag = &tag->CreateTag("a");
    }
    EXPECT_EQ(root.GetTagsCount(), 1U);
}

TEST(ParseXML, ReadsNamesTextsAndOrder) {
    EXPECT_EQ(parsed("<settings><prepocet>1</prepocet><columns><column><name>A</name></column></columns></settings>"),
              "settings(prepocet=1,columns(column(name=A)))");
    EXPECT_EQ(parsed("<a/>"), "a");
    EXPECT_EQ(parsed("<název>žluť</název>"), "název=žluť");
}

struct DocumentCase {
    const char* remark;
    AnsiString document;
    AnsiString tree;
};

void expectTrees(const std::vector<DocumentCase>& cases) {
    for (const DocumentCase& c : cases) {
        EXPECT_EQ(parsed(c.document), c.tree) << c.remark;
    }
}

TEST(ParseXML, ReadsWhatADocumentMayHoldBesides) {
    expectTrees({
        {"declaration", declaration + "<a>x</a>", "a=x"},
        {"declaration and line break", declaration + "\n<a>x</a>\n", "a=x"},
        {"byte order mark", "\xEF\xBB\xBF<a>x</a>", "a=x"},
        {"attributes are skipped", "<a b='1'>x</a>", "a=x"},
        {"comments are skipped", "<!--c--><a>x<!--c-->y</a>", "a=xy"},
        {"instructions are skipped", "<a>x<?do it?>y</a>", "a=xy"},
        {"character data section", "<a>x<![CDATA[<&]]>y</a>", "a=x<&y"},
        {"the five entities", "<a>&lt;&gt;&amp;&quot;&apos;</a>", "a=<>&\"'"},
        {"references", "<a>&#65;&#x17E;&#128512;</a>", "a=Až😀"},
        {"a carriage return as reference stays", "<a>&#13;&#10;</a>", "a=\r\n"},
        {"a bare one becomes a line break", "<a>x\r\ny\rz</a>", "a=x\ny\nz"},
        {"pieces around children are joined", "<a>x<b>y</b>z</a>", "a=xz(b=y)"},
        {"a document type without entities", "<!DOCTYPE a><a>x</a>", "a=x"},
        {"a declared encoding does not matter: the text is UTF-8",
         "<?xml version=\"1.0\" encoding=\"windows-1250\"?><a>ž</a>", "a=ž"},
    });
}

TEST(ParseXML, DropsLayoutBlanksBesideChildren) {
    EXPECT_EQ(parsed("<a>\n  <b> </b>\n\t<c/>\n</a>"), "a(b= ,c)") << "the blank inside b is its text";
    EXPECT_EQ(parsed("<a>\n  x<b/>\n</a>"), "a=\n  x\n(b)") << "not blank throughout";
    EXPECT_EQ(parsed("<a>\u00A0<b/></a>"), "a=\u00A0(b)") << "a no-break space is text";
}

TEST(ParseXML, KeepsLayoutBlanksWhenTold) {
    EXPECT_EQ(parsed("<a>\n  <b> </b>\n</a>", TXMLBlanks::Keep), "a=\n  \n(b= )");
}

TEST(ParseXML, GivesNullForWhatIsNotWellFormed) {
    const AnsiString null = "(null)";
    expectTrees({
        {"empty", "", null},
        {"blank", "  \n", null},
        {"declaration alone", declaration, null},
        {"text", "MNOZSTVI", null},
        {"cut in a tag", "<a><b", null},
        {"cut in a text", "<a>x", null},
        {"cut before the root's end", "<a><b>x</b>", null},
        {"crossed", "<a><b></a></b>", null},
        {"two roots", "<a/><b/>", null},
        {"text behind the root", "<a/>x", null},
        {"text before the root", "x<a/>", null},
        {"blank before the declaration", " " + declaration + "<a/>", null},
        {"bare ampersand", "<a>x & y</a>", null},
        {"bare less-than", "<a>x < y</a>", null},
        {"unknown entity", "<a>&nbsp;</a>", null},
        {"twice the same attribute", "<a b='1' b='2'/>", null},
        {"attribute without quotes", "<a b=1/>", null},
        {"end of a character data section", "<a>]]></a>", null},
        {"two hyphens in a comment", "<a><!-- -- --></a>", null},
        {"case of the end tag", "<a></A>", null},
        {"name beginning with a digit", "<1/>", null},
        {"no UTF-8", "<a>\xE8</a>", null},
        {"cut UTF-8", "<a>\xC5</a>", null},
        {"overlong UTF-8", "<a>\xC0\xAF</a>", null},
        {"surrogate in UTF-8", "<a>\xED\xA0\x80</a>", null},
        {"null character", AnsiString("<a>x\0y</a>", 10), null},
        {"null character behind", AnsiString("<a/>\0", 5), null},
        {"control character", "<a>\x01</a>", null},
        {"reference to a control character", "<a>&#1;</a>", null},
        {"reference to a null character", "<a>&#0;</a>", null},
        {"reference to a surrogate", "<a>&#xD800;</a>", null},
        {"reference beyond the last plane", "<a>&#x110000;</a>", null},
        {"wide characters", AnsiString("<\0a\0/\0>\0", 8), null},
        {"wide characters with a mark", AnsiString("\xFF\xFE<\0a\0/\0>\0", 10), null},
        {"wide characters, high byte first", AnsiString("\xFE\xFF\0<\0a\0/\0>", 10), null},
    });
}

TEST(ParseXML, GivesNullForADocumentWithDeclarationsOfItsOwn) {
    AnsiString laughs = "<!DOCTYPE a [<!ENTITY l0 \"lol\">";
    for (int i = 1; i < 10; ++i) {
        const AnsiString below = "&l" + std::to_string(i - 1) + ";";
        laughs += "<!ENTITY l" + std::to_string(i) + " \"" + below + below + below + below + below + below + "\">";
    }
    const AnsiString null = "(null)";
    expectTrees({
        {"an entity that grows without end", laughs + "]><a>&l9;</a>", null},
        {"a harmless one", "<!DOCTYPE a [<!ENTITY b \"x\">]><a>&b;</a>", null},
        {"an unused one", "<!DOCTYPE a [<!ENTITY b \"x\">]><a/>", null},
        {"a file from outside", "<!DOCTYPE a [<!ENTITY b SYSTEM \"file:///etc/hostname\">]><a>&b;</a>", null},
        {"a parameter entity", "<!DOCTYPE a [<!ENTITY % b \"x\">]><a/>", null},
        {"an entity that an unread parameter entity may declare", "<!DOCTYPE a [%b;]><a>x&c;y</a>", null},
        {"a description from outside that is not read", "<!DOCTYPE a SYSTEM \"a.dtd\"><a>x&b;y</a>", null},
    });
}

TEST(ParseXML, LimitsTheDepth) {
    EXPECT_NE(ParseXML(nested(256)), nullptr);
    EXPECT_EQ(ParseXML(nested(257)), nullptr);
    EXPECT_EQ(ParseXML(nested(500'000)), nullptr);
    AnsiString emptyElementTooDeep = nested(256);
    emptyElementTooDeep.insert(256 * 3, "<b/>");
    EXPECT_EQ(ParseXML(emptyElementTooDeep), nullptr);
}

TEST(ParseXML, DepthIsNotTheNumberOfSiblings) {
    AnsiString document = "<a>";
    for (int i = 0; i < 1000; ++i) {
        document += "<b/>";
    }
    const auto root = ParseXML(document + "</a>");
    ASSERT_NE(root, nullptr);
    EXPECT_EQ(root->GetTagsCount(), 1000U);
}

TEST(ParseXML, LimitsTheSize) {
    constexpr std::size_t limit = 16 * 1024 * 1024;
    const AnsiString largest = "<a>" + AnsiString(limit - 7, 'x') + "</a>";
    ASSERT_EQ(largest.size(), limit);
    EXPECT_NE(ParseXML(largest), nullptr);
    EXPECT_EQ(ParseXML(largest + " "), nullptr);
}

TEST(OutputXMLStr, WritesOneLineWithADeclaration) {
    TXMLTag root("settings");
    root.CreateTag("prepocet").SetValue("1");
    TXMLTag& column = root.CreateTag("columns").CreateTag("column");
    column.CreateTag("name").SetValue("MNOZSTVI");
    column.CreateTag("hint");
    EXPECT_EQ(OutputXMLStr(root), declaration + "<settings><prepocet>1</prepocet><columns><column>"
                                                "<name>MNOZSTVI</name><hint/></column></columns></settings>");
}

TEST(OutputXMLStr, WritesTheOwnTextBeforeTheChildren) {
    TXMLTag root("a");
    root.SetValue("x");
    root.CreateTag("b");
    EXPECT_EQ(OutputXMLStr(root), declaration + "<a>x<b/></a>");
}

TEST(OutputXMLStr, WritesMarkupAndLineBreaksAsReferences) {
    TXMLTag root("a");
    root.SetValue("<b> & \"c\" 'd' ]]>\r\n\t");
    EXPECT_EQ(OutputXMLStr(root), declaration + "<a>&lt;b&gt; &amp; \"c\" 'd' ]]&gt;&#13;&#10;&#9;</a>");
}

TEST(OutputXMLStr, ReadsBackEveryTextThatXmlCanHold) {
    const AnsiString texts[] = {
        "",
        " ",
        "  dva  ",
        "\t",
        "\n",
        "\r",
        "\r\n",
        "a\rb\nc\td",
        "\u00A01\u00A0000\u00A0",
        "Příliš žluťoučký kůň",
        "😀 \U0001F600 \U0010FFFD",
        "\x7F",
        "\u0080\u0085\u009F",
        "\u2028\u2029\uFEFF\uFFFD",
        "<a>&amp;</a> ]]> <![CDATA[x]]> <!-- -->",
        "&#13;",
        "%s \\ \"'",
    };
    for (const AnsiString& text : texts) {
        EXPECT_EQ(roundTrip(text), text);
    }
}

TEST(OutputXMLStr, DropsEveryControlCharacterThatXmlCannotHold) {
    for (char c = 0; c < 0x20; ++c) {
        const AnsiString text = AnsiString("x") + c + "y";
        const bool staysInXml = c == '\t' || c == '\n' || c == '\r';
        EXPECT_EQ(roundTrip(text), staysInXml ? text : "xy") << static_cast<int>(c);
    }
}

TEST(OutputXMLStr, DropsWhatIsNoCharacter) {
    const AnsiString texts[] = {
        "x\xEF\xBF\xBEy",     // U+FFFE
        "x\xEF\xBF\xBFy",     // U+FFFF
        "x\x80y",             // a continuation without a beginning
        "x\xC5y",             // a beginning without a continuation
        "xy\xC5",             // cut at the end
        "xy\xE2\x82",         // cut at the end
        "xy\xF0\x9F\x98",     // cut at the end
        "x\xC0\xAFy",         // overlong
        "x\xE0\x80\xAFy",     // overlong
        "x\xF0\x80\x80\xAFy", // overlong
        "x\xED\xA0\x80y",     // a surrogate
        "x\xF4\x90\x80\x80y", // beyond the last plane
        "x\xFE\xFFy",         // never in UTF-8
    };
    for (const AnsiString& text : texts) {
        EXPECT_EQ(roundTrip(text), "xy") << testing::PrintToString(text);
    }
}

TEST(OutputXMLStr, IsWellFormedForAnyBytes) {
    std::mt19937 random(20270201);
    for (int i = 0; i < 2000; ++i) {
        AnsiString bytes(random() % 24, ' ');
        for (char& byte : bytes) {
            byte = static_cast<char>(random() % 256);
        }
        const AnsiString once = roundTrip(bytes);
        ASSERT_NE(once, "(not well-formed)") << testing::PrintToString(bytes);
        ASSERT_EQ(roundTrip(once), once) << "what was kept is kept again: " << testing::PrintToString(bytes);
    }
}

TEST(OutputXMLStr, ReadsBackAWholeTree) {
    TXMLTag root("a");
    root.SetValue("x");
    root.CreateTag("b").CreateTag("c").SetValue("\r\n");
    root.CreateTag("název.1-2_3").SetValue("y");
    root.CreateTag("b");
    EXPECT_EQ(parsed(OutputXMLStr(root)), shown(&root));
}

TEST(OutputXMLStr, ABlankTextBesideChildrenComesBackWhenKept) {
    TXMLTag root("a");
    root.SetValue(" \t");
    root.CreateTag("b");
    EXPECT_EQ(parsed(OutputXMLStr(root), TXMLBlanks::Keep), shown(&root));
}

TEST(OutputXMLStr, WritesEveryPlainNameAsItIs) {
    for (const char* name : {"a", "Z", "_x", "Sloupec", "a-b", "a.b", "a_b", "A0", "a9"}) {
        TXMLTag root("settings");
        root.CreateTag(name);
        EXPECT_EQ(OutputXMLStr(root), declaration + "<settings><" + name + "/></settings>");
    }
}

TEST(OutputXMLStr, RefusesANameThatXmlDoesNotKnow) {
    for (const char* name :
         {"", "1a", "-a", "a b", "a>", "a/", "a/><b", "a b='1'", "<a", "&amp;", "a\n", "×", "\xC5", "a "}) {
        TXMLTag root("settings");
        root.CreateTag(name);
        EXPECT_THROW(OutputXMLStr(root), EConvertError) << testing::PrintToString(name);
    }
    EXPECT_EQ(messageOf<EConvertError>([] { OutputXMLStr(TXMLTag("a b")); }), "„a b“ není jméno prvku XML.");
}

TEST(OutputXMLStr, WritesADeepTreeWithoutRecursion) {
    constexpr std::size_t depth = 300'000;
    TXMLTag root("a");
    TXMLTag* tag = &root;
    for (std::size_t i = 1; i < depth; ++i) {
        tag = &tag->CreateTag("a");
    }
    EXPECT_EQ(OutputXMLStr(root).size(), declaration.size() + (depth - 1) * 7 + 4) << "<a></a> each, <a/> the last";
}

} // namespace
