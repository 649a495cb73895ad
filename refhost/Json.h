#pragma once

#include "host/Connection.h"

#include <string>
#include <string_view>

namespace refhost {

/// The text as a JSON string with its quotes. Bytes that are no UTF-8 become replacement characters, so that a line is
/// valid JSON whatever the database holds.
std::string jsonString(std::string_view text);

/// A database value as JSON: null, a number, true or false, or a string.
std::string jsonValue(const TDbValue& value);

/// Writes one JSON object on one line, its members in the order in which they are added. The order of members is part
/// of the program's output, which rules out Qt's writer: it sorts them.
class JsonObject {
public:
    JsonObject& add(std::string_view name, const TDbValue& value);
    /// Adds a member whose value is JSON already.
    JsonObject& addJson(std::string_view name, std::string_view json);
    std::string text() const;

private:
    std::string members_;
};

/// Reads one call of a batch: {"call":NAME,"params":{NAME:VALUE,...}}. A line without "call" calls
/// `defaultProcedure`. Throws Exception, saying what is wrong, for anything else.
TProcedureCall readBatchCall(std::string_view line, const std::string& defaultProcedure);

} // namespace refhost
