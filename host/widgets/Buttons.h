#pragma once

/// \file
/// The framework's three buttons.

#include "host/Types.h"
#include "host/widgets/Vocabulary.h"

#include <QPointer>
#include <QPushButton>
#include <QToolButton>

/// A push button with an image and a modal result.
///
/// A click sets the form's modal result to the button's, runs the click handler, and then looks at the form's result:
/// a handler that sets it back to 0 keeps the form open. An error in the handler is shown and keeps the form open too.
/// Enter on the focused button clicks it.
class TQelPngBitBtn : public QPushButton {
    Q_OBJECT

public:
    /// Give it an object name, a caption and a modal result next.
    explicit TQelPngBitBtn(QWidget* parent);

    /// The caption with its shortcut mark.
    AnsiString Caption() const;
    /// "&" marks the shortcut letter; a caption that is data goes through melvark::PlainCaption.
    void SetCaption(const AnsiString& caption);
    /// What a click sets; 0 (the button leaves the form open) at first.
    int ModalResult() const { return FModalResult; }
    /// One of c_ResultOk, c_ResultCancel and their like, or 0.
    void SetModalResult(int result) { FModalResult = result; }
    /// The handler runs between the two looks at the form's result. None when it is empty.
    void SetOnClick(TNotifyEvent handler) { FOnClick = std::move(handler); }
    /// The default button of its form is clicked by Enter in any control that does not use the key itself.
    bool Default() const { return isDefault(); }
    /// A form has one; the last that is set.
    void SetDefault(bool isDefaultButton) { setDefault(isDefaultButton); }
    /// A null image removes it.
    void SetGlyph(const TPngObject& png);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Click();

    int FModalResult = 0;
    TNotifyEvent FOnClick;
};

/// A small image button that never takes the focus: the control that had it keeps it during the click.
class TQelPngSpeedButton : public QToolButton {
    Q_OBJECT

public:
    /// Give it an object name, an image and a hint next: it has no caption.
    explicit TQelPngSpeedButton(QWidget* parent);

    /// The handler is guarded.
    void SetOnClick(TNotifyEvent handler) { FOnClick = std::move(handler); }
    /// A null image removes it.
    void SetGlyph(const TPngObject& png);

private:
    TNotifyEvent FOnClick;
};

/// A button with a caption that drops down an attached popup menu. A menu without a visible item is not opened: it
/// would block the keyboard unseen.
class TMenuButton : public QPushButton {
    Q_OBJECT

public:
    /// Give it an object name, a caption and a menu next.
    explicit TMenuButton(QWidget* parent);

    /// The text as it was set.
    AnsiString Caption() const;
    /// The text is data (the name of a setting) and is shown letter for letter.
    void SetCaption(const AnsiString& caption);
    /// The attached menu; null when there is none or it is gone.
    TPopupMenu* PopupMenu() const;
    /// The menu is not owned.
    void SetPopupMenu(TPopupMenu* menu);
    /// No later caption asks for more than twice the width that the present one needs: a longer one is cut with an
    /// ellipsis, and the tooltip has all of it.
    void LimitWidth();

    /// With room for the arrow beside the caption.
    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void initStyleOption(QStyleOptionButton* option) const override;

private:
    void DropDown();
    int ArrowRoom() const;

    QPointer<QMenu> FMenu;
    int FWidest = QWIDGETSIZE_MAX; ///< The most that is asked for.
};
