#pragma once

#include "host/Types.h"

#include <functional>
#include <optional>

/// Message-box flags and results of the platform.
inline constexpr int c_MessageBoxError = 16;    ///< Error icon, OK button.
inline constexpr int c_MessageBoxQuestion = 36; ///< Question icon, Yes and No buttons.
inline constexpr int c_ResultOk = 1;
inline constexpr int c_ResultCancel = 2;
inline constexpr int c_ResultYes = 6;
inline constexpr int c_ResultNo = 7;

/// What the user picked from a lookup list, as texts.
struct TLookupPick {
    AnsiString Display;
    AnsiString Key;
};

/// A form whose texts the host may replace by the user's language. The host looks a text up under
/// section + "\" + control name + "\" + "Caption" or "Hint".
class TLocalizableForm {
public:
    /// One text of one control: its current (built-in) text and the way to replace it.
    struct TText {
        AnsiString Control;  ///< Control name; the form itself is "Form".
        AnsiString Property; ///< "Caption" or "Hint".
        AnsiString Text;
        std::function<void(const AnsiString&)> Replace;
    };

    virtual ~TLocalizableForm();
    virtual void VisitTexts(const std::function<void(const TText&)>& visit) = 0;
};

/// The host object that loads and owns library items. Implemented by the host; a form works without one (null).
class TLibraryManager {
public:
    TLibraryManager() = default;
    TLibraryManager(const TLibraryManager&) = delete;
    TLibraryManager& operator=(const TLibraryManager&) = delete;
    virtual ~TLibraryManager();

    /// Shows a modal box with the text. `flags` is c_MessageBoxError or c_MessageBoxQuestion; returns the button code.
    virtual int MessageBox(const AnsiString& text, int flags) = 0;

    /// Shows a message in the host's way for the style code (the host's own; "O#" is a note with an OK button).
    virtual void Message(const AnsiString& text, const AnsiString& style) = 0;

    /// Opens the modal list of the view that the host form identifier names ("Kordan3:DODAK.Normal"), restricted by the
    /// SQL condition (none when empty). Nothing when the user cancelled.
    virtual std::optional<TLookupPick> LookupList(const AnsiString& form, const AnsiString& displayColumn,
                                                  const AnsiString& keyColumn, const AnsiString& condition) = 0;

    /// Replaces the captions and hints of the form's controls by the user's language from the section
    /// ("KORDAN30\MelvarkEditorSelectWin"). Called from each form's create event.
    virtual void LocalizeForm(TLocalizableForm& form, const AnsiString& section) = 0;
};
