#include "refhost/tables/TableStyle.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace refhost {

namespace {

TEST(TableStyle, LeavesMoreRoomBetweenColumnsThanTheApplicationsStyle) {
    const TableStyle style(nullptr);

    for (const QStyle::PixelMetric margin : {QStyle::PM_FocusFrameHMargin, QStyle::PM_HeaderMargin}) {
        EXPECT_GT(style.pixelMetric(margin, nullptr, nullptr), QApplication::style()->pixelMetric(margin));
    }
}

TEST(TableStyle, ChangesNothingElse) {
    const TableStyle style(nullptr);

    EXPECT_EQ(style.pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, nullptr),
              QApplication::style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    EXPECT_EQ(style.baseStyle()->objectName(), QApplication::style()->objectName());
}

} // namespace

} // namespace refhost
