#include "tests/refhost/ScreenRows.h"

namespace {

std::vector<TDbValue> note(std::int64_t id, const char* number, const char* date, const char* supplier, bool isOpen,
                           std::int64_t lines) {
    return {id,
            number,
            date,
            supplier,
            isOpen ? "otevřený" : "uzavřený",
            lines,
            std::int64_t{7},
            std::int64_t{isOpen ? 1 : 0}};
}

} // namespace

TResultTable deliveryNotes() {
    return {.Columns = {"_ID", "CISLO", "DATUM", "DODAVATEL", "STAV", "POCETPOLOZEK", "_DODVID", "_OTEVRENO"},
            .Rows = {note(101, "DL-9", "1.2.2027", "Železárny", true, 2),
                     note(102, "DL-10", "31.12.2026", "Čapek", false, 10),
                     note(103, "DL-11", "15.1.2027", "Chládek", true, 0)}};
}

TResultTable linesOf(int document) {
    return {.Columns = {"_ID", "_DOCID", "PORADI", "SKLADPOL", "MNOZSTVI"},
            .Rows = {{std::int64_t{1}, std::int64_t{document}, std::int64_t{1},
                      "Položka dokladu " + std::to_string(document), "1,5"}}};
}

std::string rowText(const QAbstractItemModel& model, int row) {
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column) {
        cells.append(model.index(row, column).data().toString());
    }
    return cells.join(QStringLiteral(" | ")).toStdString();
}
