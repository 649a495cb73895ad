#include "host/Connection.h"

#include "host/AsciiCase.h"

TConnection::~TConnection() = default;

bool SameDbName(std::string_view left, std::string_view right) {
    return melvark::SameButForAsciiCase(left, right);
}
