#include "host/widgets/Form.h"

#include "host/widgets/Fonts.h"
#include "host/widgets/FormTexts.h"
#include "host/widgets/Guard.h"
#include "host/widgets/Later.h"
#include "host/widgets/Text.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QThread>
#include <QWindow>

#include <algorithm>
#include <stdexcept>
#include <string>

using namespace melvark;

namespace {

/// Qt's own code for a result: its "rejected" is 0, which means "none" in a modal result.
int QtResult(int modalResult) {
    return modalResult == c_ResultCancel ? QDialog::Rejected : modalResult;
}

bool IsPlainEnter(const QKeyEvent& event) {
    return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
           (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

/// The size under which a text of the layout would be cut when the form is at least `width` wide.
QSize LayoutNeed(QLayout* layout, int width) {
    if (!layout) {
        return {0, 0};
    }
    layout->activate();
    QSize need = layout->totalMinimumSize();
    if (layout->hasHeightForWidth()) {
        need.setHeight(std::max(need.height(), layout->totalHeightForWidth(std::max(need.width(), width))));
    }
    return need;
}

int Maximum(int wanted, int minimum) {
    return wanted > 0 ? std::max(wanted, minimum) : QWIDGETSIZE_MAX;
}

} // namespace

TForm::TForm(TComponent* owner) : QDialog(qobject_cast<QWidget*>(owner)) {
    setFont(FormFont());
}

TForm::~TForm() = default;

AnsiString TForm::Caption() const {
    return ToAnsi(windowTitle());
}

void TForm::SetCaption(const AnsiString& caption) {
    setWindowTitle(ToQString(caption));
}

void TForm::SetModalResult(int result) {
    FModalResult = result;
    if (result != 0) {
        QueueLook();
    }
}

int TForm::ShowModal() {
    if (!FConstructed) {
        throw std::logic_error(metaObject()->className() + std::string(" is shown before its constructor has ended"));
    }
    FModalResult = 0;
    FLoopLevel = thread()->loopLevel() + 1;
    if (QWidget* active = QApplication::activeWindow(); active && !parentWidget()) {
        winId(); // makes the window, so that it can be kept above the one it blocks
        windowHandle()->setTransientParent(active->windowHandle());
    }
    exec();
    if (FShown) { // hidden by someone who gave no result
        CloseWith(c_ResultCancel);
    }
    FLoopLevel.reset();
    return FModalResult;
}

void TForm::Close() {
    reject();
}

void TForm::SetConstraints(const TSizeConstraints& constraints) {
    FConstraints = constraints;
    FHasConstraints = true;
    ApplyConstraints();
}

void TForm::CenterOnScreen() {
    const QRect area = screen()->geometry();
    const QPoint corner(area.left() + (area.width() - width()) / 2, area.top() + (area.height() - height()) / 2);
    setGeometry(QRect(corner, size()));
}

void TForm::VisitTexts(const std::function<void(const TText&)>& visit) {
    VisitFormTexts(*this, visit);
}

void TForm::done(int result) {
    CloseWith(result == QDialog::Rejected ? c_ResultCancel : result);
}

void TForm::FormShow() {}

void TForm::FormClose() {}

void TForm::Localize(TLibraryManager* manager, std::string_view section) {
    if (manager) {
        manager->LocalizeForm(*this, AnsiString(section));
    }
}

bool TForm::event(QEvent* event) {
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::LayoutRequest) {
        ApplyConstraints();
    }
    return handled;
}

void TForm::showEvent(QShowEvent* event) {
    const bool appears = !event->spontaneous() && !FShown;
    if (appears) {
        FShown = true;
        FModalResult = 0;
        ApplyConstraints();
        if (FPosition == TPosition::poScreenCenter) {
            CenterOnScreen();
        }
    }
    QDialog::showEvent(event);
    if (!appears) {
        return;
    }
    try {
        FormShow();
    } catch (...) { // reported once the form is on the screen: an error box cannot stand above a half-shown window
        CallLater(this, [error = std::current_exception()] { ReportError(error); });
    }
}

void TForm::keyPressEvent(QKeyEvent* event) {
    event->ignore();
    if (event->matches(QKeySequence::Cancel)) {
        if (FCloseOnEscape) {
            SetModalResult(c_ResultCancel);
        }
    } else if (IsPlainEnter(*event)) {
        const auto buttons = findChildren<QPushButton*>();
        const auto standard = std::find_if(buttons.begin(), buttons.end(), [](const QPushButton* button) {
            return button->isDefault() && button->isVisible();
        });
        if (standard != buttons.end()) {
            (*standard)->click();
        }
    }
}

void TForm::LookAtModalResult() {
    if (!FShown || FClosing || FModalResult == 0) {
        return;
    }
    if (FLoopLevel && thread()->loopLevel() > *FLoopLevel) {
        LookWhenLoopReturns();
    } else {
        CloseWith(FModalResult);
    }
}

/// Waits until the loops above the form's own (message boxes, menus) have ended: a form never closes under a handler
/// that is still running in one of them.
void TForm::LookWhenLoopReturns() {
    if (FLoopWatch) {
        return;
    }
    FLoopWatch = connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
        if (FLoopLevel && thread()->loopLevel() > *FLoopLevel) {
            return;
        }
        disconnect(FLoopWatch);
        FLoopWatch = {};
        QueueLook();
    });
}

void TForm::QueueLook() {
    CallLater(this, [this] { LookAtModalResult(); });
}

void TForm::CloseWith(int result) {
    if (FClosing) {
        return;
    }
    if (FShown) {
        FModalResult = result;
        FClosing = true;
        Guarded([this] { FormClose(); });
        FClosing = false;
        FShown = false;
    }
    FModalResult = result;
    QDialog::done(QtResult(result));
}

void TForm::ApplyConstraints() {
    if (!FHasConstraints) {
        return;
    }
    const QSize least =
        LayoutNeed(layout(), FConstraints.MinWidth).expandedTo(QSize(FConstraints.MinWidth, FConstraints.MinHeight));
    setMinimumSize(least);
    setMaximumSize(Maximum(FConstraints.MaxWidth, least.width()), Maximum(FConstraints.MaxHeight, least.height()));
}

bool melvark::Visible(const TControl& control) {
    return !control.isHidden();
}
