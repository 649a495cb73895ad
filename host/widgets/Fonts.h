#pragma once

/// \file
/// The letters of forms and grids.

#include <QFont>

namespace melvark {

/// The font of forms: the application's family, bold, about 8 points (8/9 of the application's size, so that a user who
/// made the desktop's letters larger has them larger here too; never under 8 points).
QFont FormFont();

/// The same size, not bold: grids and the editors laid over their cells.
QFont GridFont();

} // namespace melvark
