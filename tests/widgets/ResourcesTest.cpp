#include "host/widgets/Resources.h"

#include "tests/support/RecordingHost.h"

#include <QPixmap>

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {

class ResourcesTest : public testing::Test {
protected:
    RecordingHost host; // every image is one red pixel
    TScopedHost scope{host};
    QPixmap png;
};

} // namespace

TEST_F(ResourcesTest, LoadsTheNamedImageOfTheGroupInItsOwnSize) {
    EXPECT_TRUE(TResources::PngImageGetBitmap("OK", png, "ENGINE", 0, 0));
    EXPECT_THAT(host.images(), ElementsAre("ENGINE/OK"));
    EXPECT_EQ(png.size(), QSize(1, 1));
}

TEST_F(ResourcesTest, ScalesToTheWantedSize) {
    EXPECT_TRUE(TResources::PngImageGetBitmap("OK", png, "ENGINE", 16, 16));
    EXPECT_EQ(png.size(), QSize(16, 16));
}

TEST_F(ResourcesTest, AMissingImageLeavesANullGlyph) {
    host.hasImages = false;
    png = QPixmap(4, 4);
    EXPECT_FALSE(TResources::PngImageGetBitmap("OK", png, "ENGINE", 0, 0));
    EXPECT_TRUE(png.isNull());
}
