#include "benchmarks/database/ShownList.h"

#include "refhost/HostLibraryManager.h"
#include "refhost/Languages.h"
#include "refhost/Trace.h"
#include "refhost/lookup/LookupQuery.h"
#include "refhost/tables/ResultModel.h"
#include "refhost/tables/ResultTable.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>

namespace benchmark {

namespace {

/// Leaves the list when it was painted with so many rows at least.
class Clerk : public QObject {
public:
    explicit Clerk(int rows) : rows_(rows) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* table = qobject_cast<refhost::ResultTable*>(watched->parent());
        if (event->type() == QEvent::Paint && table != nullptr && table->result().rowCount() >= rows_) {
            // Behind the painting, and before anything that waits for a free moment.
            QMetaObject::invokeMethod(qobject_cast<QDialog*>(table->window()), &QDialog::reject, Qt::QueuedConnection);
        }
        return false;
    }

private:
    int rows_;
};

} // namespace

std::string listQuery(const List& list) {
    return refhost::lookupQuery(list.Form, list.Condition, refhost::Languages("cs"));
}

double showList(Company& company, const List& list, int rows, Until until) {
    const refhost::Languages languages("cs");
    refhost::Trace trace;
    refhost::HostLibraryManager manager(
        {.openRows = [&company](const AnsiString& sql) { return company.measured().openRows(sql); },
         .settings = TFormatSettings::Czech(),
         .languages = languages,
         .trace = trace});
    const Clerk clerk(until == Until::FirstPagePainted ? 1 : rows);
    return company.microseconds([&] { manager.LookupList(list.Form, "CISLO", "_ID", list.Condition); });
}

} // namespace benchmark
