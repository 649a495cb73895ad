#pragma once

#include "tests/support/RecordingHost.h"

#include <map>
#include <vector>

/// Cells of one delivery-note line by column key; a key that is missing is an empty text.
using LineCells = std::map<AnsiString, AnsiString>;

/// The keys of the columns of a delivery note's lines, in order.
const std::vector<AnsiString>& dodakKeys();

/// A result set with one field for each column key.
TResultTable dodakLines(const std::vector<LineCells>& lines);

/// A result set with one field for each key.
TResultTable lineTable(const std::vector<AnsiString>& keys, const std::vector<LineCells>& lines);

/// Makes the procedures of settings and placement known, without anything stored.
void scriptSettings(RecordingConnection& connection);

/// Makes the question known whether unsaved work may be taken up; the answer is yes.
void scriptRestoring(RecordingConnection& connection, const AnsiString& procedure, const AnsiString& idParam);

/// Two lines that a source could bring: milk and rye bread.
std::vector<LineCells> sampleLines();

/// Makes every procedure and query known that a delivery note's editor uses: user "novak", local VAT off, the rates
/// "21 %", "12 %", "0 %", the warehouses "Brno" and "Praha", no stored settings, sources that bring `lines`, and a
/// recalculation that brings no row back.
void scriptDodakEditor(RecordingConnection& connection, const std::vector<LineCells>& lines = sampleLines());

/// The initialisation's answer with local VAT on or off ("1" or "0").
void scriptInit(RecordingConnection& connection, const AnsiString& localVat);
