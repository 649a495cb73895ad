// One write of the file of unsaved work over what stands there, for a look at its system calls.
//
//   one_write FILE

#include "editwin/model/KeptFile.h"

#include <ostream>

int main(int argc, char** argv) {
    if (argc != 2) {
        return 64;
    }
    melvark::KeptFile file(argv[1]);
    file.Write([](std::ostream& out) { out << "new content\n"; });
    return 0;
}
