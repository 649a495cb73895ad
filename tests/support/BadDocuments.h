#pragma once

#include "host/Types.h"

#include <vector>

/// A document as it could lie in a database, and whether anything of it can be read.
struct BadDocument {
    const char* Name;
    AnsiString Text;
    bool IsRead = false;
};

/// `whole`, a document with the root element `root` and a "č" in it, damaged, in other encodings, far too deep, far too
/// long and as a bomb. A database hands texts over as UTF-8, whatever a document says of itself: what declares another
/// encoding is read, what is in another encoding is not.
std::vector<BadDocument> badDocuments(const AnsiString& root, const AnsiString& whole);
