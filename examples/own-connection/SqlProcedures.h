#pragma once

#include <QString>

#include <host/Types.h>
#include <vector>

/// A procedure that is a list of statements. Parameters stand in them as ":a_NAME".
struct SqlProcedure {
    AnsiString Name;
    std::vector<AnsiString> Inputs;
    std::vector<QString> Statements;
};

/// Statements end with a semicolon at the end of a line; "begin ... end;" of a trigger stands on one line. A line that
/// begins with "--" is a comment.
std::vector<QString> Statements(const QString& script);

/// The procedures of a script in which "-- procedure NAME PARAMETER ..." stands above each one's statements.
std::vector<SqlProcedure> Procedures(const QString& script);
