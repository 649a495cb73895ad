#include "tests/crowd/ModalClerk.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <QWidget>

namespace crowd {

namespace {

constexpr int c_LookAgainMs = 20;
constexpr int c_MistypedOneIn = 12;

void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {}, const QString& text = {}) {
    QWidget* const target = window.focusWidget() ? window.focusWidget() : &window;
    QKeyEvent down(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(target, &down);
}

void type(QWidget& window, char letter) {
    press(window, Qt::Key_unknown, {}, QString(QLatin1Char(letter)));
}

bool isNote(const ClerkTask& task) {
    return task.Params.starts_with("DODAK,");
}

double millisecondsOf(const std::function<void()>& work) {
    QElapsedTimer clock;
    clock.start();
    work();
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

bool isMessage(const QWidget& window) {
    return window.objectName() == QStringLiteral("errorDialog") || window.objectName() == QStringLiteral("MessageBox");
}

bool isDialogOfSource(const QWidget& window) {
    return window.objectName() == QStringLiteral("SelectBox");
}

} // namespace

ModalClerk::ModalClerk(const ClerkTask& task, int quantity, std::mt19937& random, DiaryPen& diary)
    : task_(task), random_(random), diary_(diary), number_(task.Source) {
    if (between(1, c_MistypedOneIn) == 1) {
        number_.back() = 'x';
        isMistyped_ = true;
    }
    // Of a note quantities of some lines, behind each of which Enter passes two more columns, and now and then a price;
    // of an order, whose lines have one quantity or more, a quantity at each stop.
    values_ = {std::to_string(quantity)};
    for (int left = std::min(task.Lines, between(4, 12)); --left > 0;) {
        if (isNote(task)) {
            values_.push_back(between(1, 4) == 1 ? std::to_string(between(5, 400)) + ",5" : "");
            values_.emplace_back();
        }
        values_.push_back(std::to_string(between(1, 60)));
    }
    qApp->installEventFilter(this);
    opening_.start();
    after(c_LookAgainMs);
}

int ModalClerk::between(int lowest, int highest) {
    return lowest + static_cast<int>(random_() % static_cast<unsigned>(highest - lowest + 1));
}

// A timer of its own each time: one that is at work does not fire in the loop of a window that it has opened.
void ModalClerk::after(int milliseconds) {
    QTimer::singleShot(milliseconds, this, [this] { act(); });
}

void ModalClerk::act() {
    QWidget* const window = QApplication::activeModalWidget();
    if (!window || !window->isVisible()) {
        after(c_LookAgainMs);
    } else if (isMessage(*window)) {
        read(*window);
    } else if (isRefused_ && !(isMistyped_ && isDialogOfSource(*window))) {
        giveUp(*window);
    } else if (isDialogOfSource(*window)) {
        nameSource(*window);
    } else {
        edit(*window);
    }
}

void ModalClerk::read(QWidget& message) {
    isRefused_ = true;
    after(between(1000, 3000));
    press(message, Qt::Key_Return);
}

void ModalClerk::giveUp(QWidget& window) {
    hasGivenUp_ = true;
    after(c_LookAgainMs);
    isDialogOfSource(window) ? press(window, Qt::Key_Escape) : static_cast<void>(window.close());
}

void ModalClerk::nameSource(QWidget& dialog) {
    if (isRefused_) { // he corrects the last letter
        isRefused_ = isMistyped_ = false;
        press(dialog, Qt::Key_End);
        press(dialog, Qt::Key_Backspace);
        number_ = task_.Source;
        letters_ = number_.size() - 1;
    }
    if (letters_ < number_.size()) {
        after(between(80, 250));
        type(dialog, number_[letters_++]);
    } else {
        opening_.restart();
        diary_.beginsToWait();
        after(c_LookAgainMs);
        press(dialog, Qt::Key_Return);
    }
}

void ModalClerk::edit(QWidget& editor) {
    if (opening_.isValid()) { // it is there, and not painted yet
        after(c_LookAgainMs);
        return;
    }
    if (stop_ == values_.size()) {
        after(c_LookAgainMs);
        diary_.beginsToWait();
        const double milliseconds = millisecondsOf([&] { press(editor, Qt::Key_Return, Qt::ControlModifier); });
        if (!isRefused_) {
            diary_.waited("saving", milliseconds);
        }
        return;
    }
    const std::string& value = values_[stop_++];
    if (value.empty()) {
        after(between(150, 400));
        press(editor, Qt::Key_Return);
        return;
    }
    for (const char letter : value) {
        type(editor, letter);
    }
    after(between(1000, 3000));
    diary_.beginsToWait();
    const double milliseconds = millisecondsOf([&] { press(editor, Qt::Key_Return); });
    if (!isRefused_) {
        diary_.waited(isNote(task_) ? "cell" : "cell of an order", milliseconds);
    }
}

bool ModalClerk::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Paint && opening_.isValid()) {
        const auto* const widget = qobject_cast<QWidget*>(object);
        const QWidget* const window = widget ? widget->window() : nullptr;
        if (window && window == QApplication::activeModalWidget() && !isMessage(*window) &&
            !isDialogOfSource(*window)) {
            diary_.waited("opening", static_cast<double>(opening_.nsecsElapsed()) / 1e6);
            opening_.invalidate();
        }
    }
    return false;
}

} // namespace crowd
