#pragma once

#include "refhost/dbcheck/Exercise.h"

namespace refhost {

/// Saves nothing twice, once under an identity that comes and once under one that is given up before. A database
/// without identities is not tried. Throws EDatabaseError when the database cannot be reached.
void exerciseIdentity(const ExerciseContext& context);

} // namespace refhost
