#pragma once

#include <QProxyStyle>

namespace refhost {

/// The application's style with more room between the columns of a table, so that a number and the text right of it do
/// not touch.
class TableStyle : public QProxyStyle {
    Q_OBJECT
public:
    explicit TableStyle(QObject* parent);
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
};

} // namespace refhost
