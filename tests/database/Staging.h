#pragma once

#include "tests/database/Contract.h"

#include <map>

namespace refhost {

/// The cells of a row that are not empty, by the parameters that carry them.
using Cells = std::map<std::string, std::string>;

/// The calls of a save as the editors make them. The texts are those of answer(): empty for a success.
void beginSave(Database& database);
std::string stageNoteRow(Database& database, const Cells& cells);
std::string stageOrderRow(Database& database, const Cells& cells);

struct NoteSources {
    TDbValue Note = {};
    TDbValue Order = {};
};
std::string saveNote(Database& database, const TDbValue& note, const NoteSources& sources = {});

struct OrderSources {
    TDbValue Order = {};
    TDbValue Template = {};
    TDbValue Note = {};
};
std::string saveOrder(Database& database, const TDbValue& document, const OrderSources& sources = {});

} // namespace refhost
