#include "host/widgets/FormTexts.h"

#include "host/widgets/Text.h"

#include <QAbstractButton>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPointer>

namespace melvark {

namespace {

using Visitor = std::function<void(const TLocalizableForm::TText&)>;

/// One text of a control, with the way to change it as Qt's own pair of functions.
template <class Control, class Set>
void VisitText(Control& control, const QString& name, const char* property, const QString& text, Set set,
               const Visitor& visit) {
    if (text.isEmpty()) {
        return;
    }
    QPointer<Control> target(&control);
    visit({ToAnsi(name), property, ToAnsi(text), [target, set](const AnsiString& replacement) {
               if (target) {
                   std::invoke(set, *target, ToQString(replacement));
               }
           }});
}

void VisitCaption(QWidget& control, const QString& name, const Visitor& visit) {
    if (auto* button = qobject_cast<QAbstractButton*>(&control)) {
        VisitText(*button, name, "Caption", button->text(), &QAbstractButton::setText, visit);
    } else if (auto* label = qobject_cast<QLabel*>(&control)) {
        VisitText(*label, name, "Caption", label->text(), &QLabel::setText, visit);
    } else if (auto* box = qobject_cast<QGroupBox*>(&control)) {
        VisitText(*box, name, "Caption", box->title(), &QGroupBox::setTitle, visit);
    } else if (auto* menu = qobject_cast<QMenu*>(&control)) {
        VisitText(*menu, name, "Caption", menu->title(), &QMenu::setTitle, visit);
    }
}

void VisitControl(QWidget& control, const QString& name, const Visitor& visit) {
    VisitCaption(control, name, visit);
    VisitText(control, name, "Hint", control.toolTip(), &QWidget::setToolTip, visit);
}

/// An item without a hint of its own reads its caption there, which is no text to translate twice.
void VisitItem(QAction& item, const Visitor& visit) {
    const bool hasHint = item.toolTip() != QAction(item.text()).toolTip();
    VisitText(item, item.objectName(), "Caption", item.text(), &QAction::setText, visit);
    if (hasHint) {
        VisitText(item, item.objectName(), "Hint", item.toolTip(), &QAction::setToolTip, visit);
    }
}

bool HasOwnName(const QObject& object) {
    return !object.objectName().isEmpty() && !object.objectName().startsWith(QStringLiteral("qt_"));
}

/// A menu is a window of its own to Qt, but part of the form that owns it.
bool BelongsTo(const QWidget& form, const QObject& object) {
    const QObject* owner = &object;
    while (owner && owner != &form) {
        const auto* widget = qobject_cast<const QWidget*>(owner);
        if (widget && widget->isWindow() && !qobject_cast<const QMenu*>(widget)) {
            return false;
        }
        owner = owner->parent();
    }
    return owner == &form;
}

} // namespace

void VisitFormTexts(QWidget& form, const Visitor& visit) {
    VisitText(form, QStringLiteral("Form"), "Caption", form.windowTitle(), &QWidget::setWindowTitle, visit);
    VisitText(form, QStringLiteral("Form"), "Hint", form.toolTip(), &QWidget::setToolTip, visit);
    const QList<QObject*> children = form.findChildren<QObject*>();
    for (QObject* child : children) {
        if (!HasOwnName(*child) || !BelongsTo(form, *child)) {
            continue;
        }
        if (auto* control = qobject_cast<QWidget*>(child)) {
            VisitControl(*control, control->objectName(), visit);
        } else if (auto* item = qobject_cast<QAction*>(child)) {
            VisitItem(*item, visit);
        }
    }
}

} // namespace melvark
