#pragma once

#include "tests/support/DodakScripts.h"

#include <vector>

/// The keys of the columns of a supplier order's lines, in order.
const std::vector<AnsiString>& dodObjKeys();

/// A result set with one field for each column key.
TResultTable dodObjLines(const std::vector<LineCells>& lines);

/// Three lines that a source could bring: flour with two secondary units, sugar with one, a service without any unit.
std::vector<LineCells> sampleOrderLines();

/// Makes every procedure and query known that a supplier order's editor uses: user "novak", the warehouses "Brno" and
/// "Praha", the suppliers "Lípa" and "Vrba", no stored settings, sources that are document 31 and bring `lines`, groups
/// that are 1, 12 and 123 when they are named.
void scriptDodObjEditor(RecordingConnection& connection, const std::vector<LineCells>& lines = sampleOrderLines());
