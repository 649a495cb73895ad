#pragma once

#include "refhost/dbcheck/Exercise.h"

namespace refhost {

/// Keeps, finds, renames and deletes a column setting, and keeps a placement, of a kind of editor that there is not.
/// Throws EDatabaseError when the database cannot be reached.
void exerciseSettings(const ExerciseContext& context);

} // namespace refhost
