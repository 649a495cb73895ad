#pragma once

#include "benchmarks/database/Report.h"

#include <span>
#include <string>

namespace benchmark {

/// Draws how the costs of one line or call grow with the size, one panel a kind of work, both axes logarithmic: a level
/// line is linear growth of the whole. Returns the picture as SVG.
std::string growthPlot(std::span<const Figure> figures);

} // namespace benchmark
