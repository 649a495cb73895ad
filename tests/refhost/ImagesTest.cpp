#include "refhost/Images.h"

#include <QImage>

#include <gtest/gtest.h>

namespace refhost {

namespace {

class NamedImage : public testing::TestWithParam<const char*> {};

/// How many pixels are painted at all, in percent.
int inkedPercent(const QImage& image) {
    int inked = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            inked += image.pixelColor(x, y).alpha() > 128 ? 1 : 0;
        }
    }
    return inked * 100 / (image.width() * image.height());
}

TEST_P(NamedImage, IsAPngOfItsOwnLargeEnoughForADoubledScale) {
    const Images images;
    const std::string_view data = images.data(GetParam(), "ENGINE");
    const QImage image =
        QImage::fromData(reinterpret_cast<const uchar*>(data.data()), static_cast<int>(data.size()), "PNG");

    ASSERT_FALSE(image.isNull());
    EXPECT_GE(image.width(), 32); // 16 pixels, doubled
    EXPECT_EQ(image.width(), image.height());
    EXPECT_TRUE(image.hasAlphaChannel());
    EXPECT_GT(inkedPercent(image), 5);
    EXPECT_LT(inkedPercent(image), 70); // the window shows through
}

INSTANTIATE_TEST_SUITE_P(Engine, NamedImage, testing::Values("OK", "OKNEXT", "CANCEL", "RUKA"),
                         [](const auto& row) { return row.param; });

TEST(Images, AllDiffer) {
    const Images images;
    EXPECT_NE(images.data("OK", "ENGINE"), images.data("OKNEXT", "ENGINE"));
    EXPECT_NE(images.data("OK", "ENGINE"), images.data("CANCEL", "ENGINE"));
    EXPECT_NE(images.data("RUKA", "ENGINE"), images.data("CANCEL", "ENGINE"));
}

TEST(Images, UnknownOnesAreEmpty) {
    const Images images;
    EXPECT_TRUE(images.data("SMILE", "ENGINE").empty());
    EXPECT_TRUE(images.data("OK", "OTHER").empty());
}

} // namespace

} // namespace refhost
