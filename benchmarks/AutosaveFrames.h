#pragma once

#include <filesystem>

namespace benchmark {

/// How long the picture of a real form stands still while its unsaved work is written: the longest frames, with and
/// without a write in them, and how much of them is the waiting for the disk. A frame is what passes between the
/// beginnings of two paintings of the grid, which is painted anew as often as the event loop can. Prints a line.
///
/// Needs Qt's application object. The work is kept in `state`.
void measureFrames(const std::filesystem::path& state, int rows, int writes);

} // namespace benchmark
