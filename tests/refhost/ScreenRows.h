#pragma once

#include "host/Connection.h"

#include <QAbstractItemModel>
#include <QStringList>

#include <string>

/// Three delivery notes as the screen's view brings them: ids 101 to 103, the second one closed.
TResultTable deliveryNotes();

/// The lines of such a note; the text of the first cell tells which note it was asked for.
TResultTable linesOf(int document);

/// The cells of a row as one text: "DL-9 | 1.2.2027 | …".
std::string rowText(const QAbstractItemModel& model, int row);
