#include "host/widgets/Shortcuts.h"

#include <QKeyEvent>
#include <QWidget>

#include <algorithm>
#include <vector>

namespace melvark {

namespace {

class AltKeyClaim : public QObject {
public:
    AltKeyClaim(QWidget& edit, std::initializer_list<Qt::Key> keys) : QObject(&edit), FKeys(keys.begin(), keys.end()) {
        edit.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::ShortcutOverride) {
            return QObject::eventFilter(watched, event);
        }
        const auto* key = static_cast<QKeyEvent*>(event);
        if (!key->modifiers().testFlag(Qt::AltModifier) ||
            std::find(FKeys.begin(), FKeys.end(), key->key()) == FKeys.end()) {
            return QObject::eventFilter(watched, event);
        }
        event->accept();
        return true;
    }

private:
    std::vector<int> FKeys;
};

} // namespace

void ClaimAltKeys(QWidget& edit, std::initializer_list<Qt::Key> keys) {
    new AltKeyClaim(edit, keys); // owned by the edit
}

} // namespace melvark
