#pragma once

/// \file
/// The framework's form class.

#include "host/LibraryManager.h"
#include "host/Types.h"
#include "host/widgets/Vocabulary.h"

#include <QDialog>
#include <QSize>

#include <optional>
#include <string_view>

/// Where a form first appears.
enum class TPosition {
    poDefault,     ///< Where the window manager puts it.
    poScreenCenter ///< In the middle of its screen.
};

/// Limits of a form's size in pixels; 0 = no limit. The layout's own needs go before them: a form never becomes so
/// small that a text is cut, and a maximum below that need gives way.
struct TSizeConstraints {
    int MinWidth = 0;  ///< Of the client area, as the others.
    int MinHeight = 0; ///< No smaller.
    int MaxWidth = 0;  ///< No wider.
    int MaxHeight = 0; ///< No taller.
};

/// The framework's form class on a dialog: show and close events, a modal result, localisation of its texts.
///
/// A form is built by its constructors, shown once or several times by ShowModal, and freed by whoever made it. The
/// create event is the last step of a class's own constructor; there is no virtual for it, since a virtual called from
/// a base constructor would not reach the derived class. Escape does not close it and Enter clicks no button, unless
/// the form says so (SetCloseOnEscape, TQelPngBitBtn::SetDefault).
///
/// The events below are called guarded: their errors go to the host's error display.
class TForm : public QDialog, public TLocalizableForm {
    Q_OBJECT

public:
    /// An owner that is a widget becomes the parent; another owner (the application) or none leaves the form without
    /// one.
    explicit TForm(TComponent* owner);
    ~TForm() override;

    /// The window's title.
    AnsiString Caption() const;
    /// Replaces it.
    void SetCaption(const AnsiString& caption);

    /// 0 = none; see c_ResultOk and c_ResultCancel.
    int ModalResult() const { return FModalResult; }
    /// Closes a shown form with a result other than 0, as soon as the running event handler has returned to the form's
    /// own event loop: a handler may still take it back by setting 0.
    void SetModalResult(int result);
    /// Shows the form modally and returns its result, which is never 0; the close box gives c_ResultCancel. Throws
    /// std::logic_error for a form whose most derived constructor has not said that it ended (Constructed).
    int ShowModal();
    /// Closes a shown form as the close box does, with c_ResultCancel.
    void Close();

    /// Looked at when the form appears; poDefault at first.
    void SetPosition(TPosition position) { FPosition = position; }
    /// Holds from now on, also for a form that is shown.
    void SetConstraints(const TSizeConstraints& constraints);
    /// Whether Escape closes the form as the close box does; false at first.
    void SetCloseOnEscape(bool closes) { FCloseOnEscape = closes; }
    /// Moves the form so that it stands in the middle of its screen, not counting the window manager's frame, which is
    /// not known before the form appears; odd rests go toward zero.
    void CenterOnScreen();

    /// Visits Caption and Hint of the form ("Form") and of its named controls and menu items; empty texts are left out.
    void VisitTexts(const std::function<void(const TText&)>& visit) override;

    void done(int result) override;

protected:
    /// The form is about to appear on a screen: once for each showing, not when a minimised window comes back. Geometry
    /// is final only after it.
    virtual void FormShow();
    /// The form is about to close and is still visible; ModalResult() is the result. Once for each showing, whichever
    /// way it came. An error in it is shown and the form closes with its result all the same.
    virtual void FormClose();

    /// The last statement of the most derived constructor.
    void Constructed() { FConstructed = true; }
    /// Whether the most derived constructor ended: a destructor of a base asks before it does what belongs to the
    /// destroy event, which must not run for a form that was never complete.
    bool IsConstructed() const { return FConstructed; }

    /// Hands the form to the library manager's localisation; a null manager leaves the built-in texts.
    void Localize(TLibraryManager* manager, std::string_view section);

    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    friend class TQelPngBitBtn;

    /// Sets the result without looking at it: what a button does before its click handler.
    void KeepModalResult(int result) { FModalResult = result; }
    /// Closes the form when it is shown, has a result, and the caller is not inside an event loop above its own.
    void LookAtModalResult();
    void LookWhenLoopReturns();
    void QueueLook();
    void CloseWith(int result);
    void ApplyConstraints();

    int FModalResult = 0;
    std::optional<int> FLoopLevel; ///< The event loop of ShowModal, counted as the thread counts nested loops.
    QMetaObject::Connection FLoopWatch;
    TPosition FPosition = TPosition::poDefault;
    TSizeConstraints FConstraints;
    bool FHasConstraints = false;
    bool FCloseOnEscape = false;
    bool FShown = false;   ///< From the show event to the close event.
    bool FClosing = false; ///< While the close event runs.
    bool FConstructed = false;
};

namespace melvark {

/// The control's own visibility flag: whether it is shown once its form is. It can be asked before the form appears,
/// when "is it on the screen" is still false for every control.
bool Visible(const TControl& control);

} // namespace melvark
