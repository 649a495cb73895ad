#include "refhost/tables/TableStyle.h"

#include <QApplication>

namespace refhost {

namespace {

constexpr int c_cellMargin = 7;

} // namespace

TableStyle::TableStyle(QObject* parent) : QProxyStyle(QApplication::style()->objectName()) {
    setParent(parent);
}

int TableStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    if (metric == PM_FocusFrameHMargin || metric == PM_HeaderMargin) {
        return c_cellMargin;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

} // namespace refhost
