// Takes up unsaved work, if there is some, and writes over it once, for a look at the system calls.
//
//   one_write FILE

#include "editwin/model/KeptFile.h"

#include <istream>
#include <ostream>

int main(int argc, char** argv) {
    if (argc != 2) {
        return 64;
    }
    melvark::KeptFile file(argv[1]);
    if (file.HasContent()) {
        file.Read([](std::istream& in) { in.ignore(); });
    }
    file.Write([](std::ostream& out) { out << "new content\n"; });
    return 0;
}
