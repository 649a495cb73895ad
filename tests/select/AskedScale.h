#pragma once

#include <QCoreApplication>

/// How many pixels a point has each way in this run: two where the command line says so. That the screen has them is
/// for the tests of the geometry to see: without them they would run at 100 % twice.
inline qreal askedScale() {
    return QCoreApplication::arguments().contains(QStringLiteral("--at-200-percent")) ? 2 : 1;
}
