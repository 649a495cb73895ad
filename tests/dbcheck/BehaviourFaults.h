#pragma once

#include "tests/database/Engines.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace refhost {

/// One place of a shipped procedure that is written otherwise.
struct ProcedureEdit {
    const char* Procedure;
    const char* Text; ///< Stands there once.
    const char* With;
};

/// A database whose declarations are right and whose procedures do something wrong.
struct BehaviourFault {
    const char* Name; ///< A sentence in camel case.
    Engine On;
    std::vector<ProcedureEdit> Edits;
    const char* Screen;
    std::vector<std::string> Sentences;
};

std::ostream& operator<<(std::ostream& stream, const BehaviourFault& fault);

/// The shipped SQL of the procedure with the edit in it; fails the test when the text does not stand there once.
std::string editedProcedure(Engine engine, const ProcedureEdit& edit);

std::vector<BehaviourFault> behaviourFaults();

} // namespace refhost
