#include "benchmarks/editors/Editors.h"

#include "editors/MelvarkEditorDodObjEditWin.h"
#include "editors/MelvarkEditorDodakEditWin.h"

#include <QApplication>
#include <QTimer>

#include <stdexcept>

namespace benchmark {

namespace {

constexpr int c_Supplier = 1;
constexpr int c_Warehouse = 1;

/// Notes that a widget was painted.
class PaintWatch : public QObject {
public:
    PaintWatch() { qApp->installEventFilter(this); }

    bool eventFilter(QObject*, QEvent* event) override {
        isPainted_ = isPainted_ || event->type() == QEvent::Paint;
        return false;
    }
    bool take() { return std::exchange(isPainted_, false); }

private:
    bool isPainted_ = false;
};

std::unique_ptr<TEditBox> openNote(std::int64_t document) {
    return std::make_unique<TDodakEditBox>(qApp, nullptr, "SABLONA", static_cast<int>(document), c_Supplier);
}

std::unique_ptr<TEditBox> openOrder(std::int64_t document) {
    return std::make_unique<TDodObjEditBox>(qApp, nullptr, false, "SABLONA", static_cast<int>(document), c_Warehouse,
                                            c_Supplier, "", "", TDateTime{});
}

} // namespace

const EditorKind c_NoteEditor{"note", "a_DODKIDMASTER", "a_DODKID", 26, "MNOZSTVI", openNote};
const EditorKind c_OrderEditor{"order", "a_DDOBID", "a_DDOBID", 17, "MNOZSTVIHL", openOrder};

void show(TForm& form) {
    form.setModal(true);
    form.show();
}

void untilPainted() {
    PaintWatch watch;
    QTimer patience;
    patience.setSingleShot(true);
    patience.start(1000);
    while (!watch.take()) {
        if (!patience.isActive()) {
            throw std::runtime_error("nothing was painted");
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    do {
        QCoreApplication::processEvents();
    } while (watch.take());
}

} // namespace benchmark
