#pragma once

#include "refhost/dbcheck/Exercise.h"

namespace refhost {

/// Saves rows of an item that the document's fill knows: in their order, once, whole or not at all, each session its
/// own. Throws EDatabaseError when no fill brings an item, or the database cannot be reached.
void exerciseSaving(const ExerciseContext& context);

} // namespace refhost
