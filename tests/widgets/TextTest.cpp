#include "host/widgets/Text.h"

#include <QTextDocument>

#include <gtest/gtest.h>

using namespace melvark;

TEST(Text, CzechTextsSurviveTheWidgetBoundary) {
    const AnsiString text = "Příliš žluťoučký kůň – 5 Kč";
    EXPECT_EQ(ToAnsi(ToQString(text)), text);
    EXPECT_EQ(ToQString("č").size(), 1);
}

TEST(Text, BytesThatAreNoTextBecomeTheReplacementCharacter) {
    EXPECT_EQ(ToQString("a\xff"
                        "b"),
              QStringLiteral(u"a\ufffdb"));
}

TEST(Text, APlainCaptionDoublesTheShortcutMark) {
    EXPECT_EQ(PlainCaption("R&D & co"), QStringLiteral("R&&D && co"));
    EXPECT_EQ(PlainCaption("Žádný vzor"), QStringLiteral("Žádný vzor"));
}

TEST(Text, ACaptionGivesItsTextBack) {
    for (const char* const text : {"R&D & co", "&&", "Žádný vzor"}) {
        EXPECT_EQ(TextOfCaption(PlainCaption(text)), text);
    }
}

TEST(Text, AHintThatLooksLikeMarkupIsShownLetterForLetter) {
    EXPECT_EQ(PlainHint("Příjem & <výdej"), QStringLiteral("Příjem & <výdej"));
    const QString hint = PlainHint("<b>tučně</b> & <img src='x'>");
    QTextDocument shown;
    shown.setHtml(hint);
    EXPECT_TRUE(Qt::mightBeRichText(hint));
    EXPECT_EQ(shown.toPlainText(), QStringLiteral("<b>tučně</b> & <img src='x'>"));
}
