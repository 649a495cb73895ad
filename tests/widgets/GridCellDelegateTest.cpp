#include "host/widgets/GridCellDelegate.h"

#include <QFontMetrics>
#include <QImage>

#include <gtest/gtest.h>

using melvark::CellTextOrigin;

namespace {

struct Place {
    const char* name;
    QRect cell;
    int textWidth;
    Qt::AlignmentFlag align;
    QPoint origin;
};

class CellTextOriginTest : public testing::TestWithParam<Place> {};

/// The columns and rows of the image in which something else than the background is drawn.
QRect inkOf(const QImage& image, QRgb background) {
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != background) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

class GridCellPaintTest : public testing::Test {
protected:
    GridCellPaintTest() {
        grid.SetColCount(2);
        grid.SetRowCount(2);
        grid.SetColWidths(1, 100);
        grid.SetCells(1, 1, "HHH");
        grid.resize(300, 200);
    }

    QImage cellImage() {
        QImage image(grid.size(), QImage::Format_RGB32);
        grid.render(&image);
        const QPoint client(TStringGrid::c_BorderWidth, TStringGrid::c_BorderWidth);
        return image.copy(grid.CellRect(1, 1).translated(client));
    }

    QRgb background() { return grid.palette().color(QPalette::Base).rgb(); }

    void present(Qt::AlignmentFlag align, bool bold) {
        grid.SetPresentation([=](int, int) { return TCellLook{.Text = "HHH", .Align = align, .Bold = bold}; });
    }

    TStringGrid grid{nullptr};
};

} // namespace

TEST_P(CellTextOriginTest, StandsAtItsDistanceFromTheEdges) {
    EXPECT_EQ(CellTextOrigin(GetParam().cell, GetParam().textWidth, GetParam().align), GetParam().origin);
}

// A cell 100 pixels wide at (50, 20): its right edge is at 150, its middle at 100.
INSTANTIATE_TEST_SUITE_P(
    Places, CellTextOriginTest,
    testing::Values(Place{"Left", {50, 20, 100, 20}, 30, Qt::AlignLeft, {53, 24}},
                    Place{"Right", {50, 20, 100, 20}, 30, Qt::AlignRight, {117, 24}},       // 150 - 30 - 3
                    Place{"Center", {50, 20, 100, 20}, 30, Qt::AlignHCenter, {85, 24}},     // 50 + 50 - 15
                    Place{"CenterOdd", {50, 20, 100, 20}, 31, Qt::AlignHCenter, {85, 24}},  // 50 + 34.5 rounded up
                    Place{"RightTooWide", {50, 20, 20, 20}, 30, Qt::AlignRight, {37, 24}},  // starts left of the cell
                    Place{"CenterTooWide", {0, 0, 10, 20}, 31, Qt::AlignHCenter, {-11, 4}}, // -10.5 rounds away
                    Place{"EmptyText", {0, 0, 10, 20}, 0, Qt::AlignLeft, {3, 4}}),
    [](const auto& instance) { return std::string(instance.param.name); });

TEST_F(GridCellPaintTest, ACellIsAsWideAndHighAsItsColumnAndRow) {
    EXPECT_EQ(cellImage().size(), QSize(100, 20));
}

TEST_F(GridCellPaintTest, TextIsDrawnAtItsSide) {
    const QFontMetrics metrics(grid.font());
    present(Qt::AlignLeft, false);
    const QRect left = inkOf(cellImage(), background());
    EXPECT_GE(left.left(), 3);
    EXPECT_LE(left.left(), 3 + metrics.horizontalAdvance(u'H') / 2);
    present(Qt::AlignRight, false);
    const QRect right = inkOf(cellImage(), background());
    EXPECT_EQ(right.left() - left.left(), (100 - metrics.horizontalAdvance(QStringLiteral("HHH")) - 3) - 3);
    present(Qt::AlignHCenter, false);
    const QRect center = inkOf(cellImage(), background());
    EXPECT_NEAR(center.center().x(), 49, 2);
    EXPECT_GE(center.top(), 4);
}

TEST_F(GridCellPaintTest, ABoldCellIsDrawnBold) {
    present(Qt::AlignLeft, false);
    const QRect regular = inkOf(cellImage(), background());
    present(Qt::AlignLeft, true);
    EXPECT_GT(inkOf(cellImage(), background()).width(), regular.width());
}

TEST_F(GridCellPaintTest, ALongTextIsClippedToItsCell) {
    grid.SetCells(1, 1, AnsiString(200, 'H'));
    const QImage image = [this] {
        QImage whole(grid.size(), QImage::Format_RGB32);
        grid.render(&whole);
        return whole;
    }();
    // What lies right of the last column is the grid's empty background.
    const QRect cell = grid.CellRect(1, 1).translated(TStringGrid::c_BorderWidth, TStringGrid::c_BorderWidth);
    const QImage beside = image.copy(cell.right() + 3, cell.top(), 40, cell.height());
    EXPECT_TRUE(inkOf(beside, background()).isNull());
}

TEST_F(GridCellPaintTest, ALineBreakIsDrawnAsABlank) {
    grid.SetCells(1, 1, "H H");
    const QImage blank = cellImage();
    grid.SetCells(1, 1, "H\nH");
    EXPECT_EQ(cellImage(), blank);
}
