#include "host/widgets/Buttons.h"

#include "host/widgets/Form.h"
#include "host/widgets/Guard.h"
#include "host/widgets/Text.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QMenu>
#include <QPixmap>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>

using namespace melvark;

namespace {

// The image is shown as large as the style's button icons, whatever its own size: a larger one stays crisp on a dense
// screen.
void ShowGlyph(QAbstractButton& button, const QPixmap& png) {
    const int side = button.style()->pixelMetric(QStyle::PM_ButtonIconSize, nullptr, &button);
    button.setIcon(QIcon(png));
    button.setIconSize(QSize(side, side));
}

bool IsEnter(const QKeyEvent& event) {
    return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
           (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

} // namespace

TQelPngBitBtn::TQelPngBitBtn(QWidget* parent) : QPushButton(parent) {
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &TQelPngBitBtn::Click);
}

AnsiString TQelPngBitBtn::Caption() const {
    return ToAnsi(text());
}

void TQelPngBitBtn::SetCaption(const AnsiString& caption) {
    setText(ToQString(caption));
}

void TQelPngBitBtn::SetGlyph(const TPngObject& png) {
    ShowGlyph(*this, png);
}

void TQelPngBitBtn::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(*event)) {
        click();
    } else {
        QPushButton::keyPressEvent(event);
    }
}

void TQelPngBitBtn::Click() {
    const QPointer<TForm> form = qobject_cast<TForm*>(window());
    if (form) {
        form->KeepModalResult(FModalResult);
    }
    try {
        if (FOnClick) {
            FOnClick(this);
        }
    } catch (...) {
        if (form) {
            form->KeepModalResult(0);
        }
        ReportError(std::current_exception());
    }
    if (form) {
        form->LookAtModalResult();
    }
}

TQelPngSpeedButton::TQelPngSpeedButton(QWidget* parent) : QToolButton(parent) {
    setFocusPolicy(Qt::NoFocus);
    ConnectGuarded(this, &QToolButton::clicked, this, [this] {
        if (FOnClick) {
            FOnClick(this);
        }
    });
}

void TQelPngSpeedButton::SetGlyph(const TPngObject& png) {
    ShowGlyph(*this, png);
}

TMenuButton::TMenuButton(QWidget* parent) : QPushButton(parent) {
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, this, &TMenuButton::DropDown);
}

AnsiString TMenuButton::Caption() const {
    return TextOfCaption(text());
}

void TMenuButton::SetCaption(const AnsiString& caption) {
    setText(PlainCaption(caption));
    setToolTip(FWidest < QWIDGETSIZE_MAX ? PlainHint(caption) : QString());
}

void TMenuButton::LimitWidth() {
    FWidest = 2 * sizeHint().width();
}

int TMenuButton::ArrowRoom() const {
    QStyleOptionButton option;
    option.initFrom(this);
    return style()->pixelMetric(QStyle::PM_MenuButtonIndicator, &option, this) + fontMetrics().horizontalAdvance(u' ');
}

TPopupMenu* TMenuButton::PopupMenu() const {
    return FMenu;
}

void TMenuButton::SetPopupMenu(TPopupMenu* menu) {
    FMenu = menu;
    updateGeometry();
    update();
}

QSize TMenuButton::sizeHint() const {
    if (!FMenu) {
        return QPushButton::sizeHint();
    }
    // Qt leaves room for the arrow of its own menus only, and a style's least width holds the arrow too.
    QStyleOptionButton option;
    initStyleOption(&option);
    QSize contents = fontMetrics().size(Qt::TextShowMnemonic, text());
    contents.rwidth() += ArrowRoom();
    const QSize wanted = style()->sizeFromContents(QStyle::CT_PushButton, &option, contents, this);
    return {std::min(wanted.width(), FWidest), wanted.height()};
}

void TMenuButton::keyPressEvent(QKeyEvent* event) {
    if (IsEnter(*event) || event->key() == Qt::Key_Down) {
        click();
    } else {
        QPushButton::keyPressEvent(event);
    }
}

void TMenuButton::initStyleOption(QStyleOptionButton* option) const {
    QPushButton::initStyleOption(option);
    if (FMenu) {
        option->features |= QStyleOptionButton::HasMenu;
    }
    if (FWidest < QWIDGETSIZE_MAX) {
        const int room = style()->subElementRect(QStyle::SE_PushButtonContents, option, this).width() - ArrowRoom();
        option->text = fontMetrics().elidedText(text(), Qt::ElideRight, room, Qt::TextShowMnemonic);
    }
}

void TMenuButton::DropDown() {
    if (!FMenu) {
        return;
    }
    const auto items = FMenu->actions();
    const bool hasVisible = std::any_of(items.begin(), items.end(),
                                        [](const QAction* item) { return item->isVisible() && !item->isSeparator(); });
    if (hasVisible) {
        FMenu->popup(mapToGlobal(rect().bottomLeft()));
    }
}
