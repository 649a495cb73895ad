// A host that lets the clerk fill one delivery note from the template and prints what its database then holds.

#include "MemoryDatabase.h"
#include "MinimalHost.h"

#include <QApplication>

#include <cstdio>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false); // a dialog may be the only window for a while
    MemoryDatabase database;
    try {
        const bool isFilled = FillNote(database);
        for (const MemoryDatabase::Line& line : database.StoredLines()) {
            std::printf("%s: %g at %g\n", line.Item.c_str(), line.Quantity, line.UnitPrice);
        }
        return isFilled ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 2;
    }
}
