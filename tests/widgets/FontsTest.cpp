#include "host/widgets/Fonts.h"

#include <QApplication>

#include <gtest/gtest.h>

using namespace melvark;

namespace {

/// Sets the application's font and brings the former one back.
class ScopedApplicationFont {
public:
    explicit ScopedApplicationFont(const QFont& font) : former_(QApplication::font()) { QApplication::setFont(font); }
    ScopedApplicationFont(const ScopedApplicationFont&) = delete;
    ScopedApplicationFont& operator=(const ScopedApplicationFont&) = delete;
    ~ScopedApplicationFont() { QApplication::setFont(former_); }

private:
    QFont former_;
};

QFont fontOf(qreal points) {
    QFont font = QApplication::font();
    font.setPointSizeF(points);
    return font;
}

} // namespace

TEST(Fonts, FormsAreBoldAndGridsAreNot) {
    EXPECT_TRUE(FormFont().bold());
    EXPECT_FALSE(GridFont().bold());
    EXPECT_EQ(FormFont().family(), QApplication::font().family());
}

TEST(Fonts, ADesktopOfNinePointsGivesEight) {
    const ScopedApplicationFont nine(fontOf(9));
    EXPECT_DOUBLE_EQ(FormFont().pointSizeF(), 8);
    EXPECT_DOUBLE_EQ(GridFont().pointSizeF(), 8);
}

TEST(Fonts, ADesktopWithLargeLettersKeepsThemLarge) {
    const ScopedApplicationFont eighteen(fontOf(18));
    EXPECT_DOUBLE_EQ(FormFont().pointSizeF(), 16);
}

TEST(Fonts, NothingIsSmallerThanEightPoints) {
    const ScopedApplicationFont six(fontOf(6));
    EXPECT_DOUBLE_EQ(FormFont().pointSizeF(), 8);
}
