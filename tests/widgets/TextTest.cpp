#include "host/widgets/Text.h"

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
