#pragma once

/// \file
/// What a host does for a plug-in's windows: boxes, lookup lists and the user's language.

#include "host/Types.h"

#include <functional>
#include <optional>

/// \name Message-box flags and results of the platform
/// A form's modal result is one of the results, too.
/// \{
inline constexpr int c_MessageBoxError = 16;    ///< Error icon, OK button.
inline constexpr int c_MessageBoxQuestion = 36; ///< Question icon, Yes and No buttons.
inline constexpr int c_ResultOk = 1;            ///< "OK".
inline constexpr int c_ResultCancel = 2;        ///< Cancelled, or closed by the close box.
inline constexpr int c_ResultYes = 6;           ///< The question's Yes.
inline constexpr int c_ResultNo = 7;            ///< The question's No.
/// \}

/// What the user picked from a lookup list, as texts.
struct TLookupPick {
    AnsiString Display; ///< Of the display column.
    AnsiString Key;     ///< Of the key column, for TextToInt.
};

/// A form whose texts the host may replace by the user's language. The host looks a text up under
/// section + "\" + control name + "\" + "Caption" or "Hint".
class TLocalizableForm {
public:
    /// One text of one control: its current (built-in) text and the way to replace it.
    struct TText {
        AnsiString Control;                             ///< Control name; the form itself is "Form".
        AnsiString Property;                            ///< "Caption" or "Hint".
        AnsiString Text;                                ///< Never empty.
        std::function<void(const AnsiString&)> Replace; ///< Holds as long as the form.
    };

    virtual ~TLocalizableForm();
    /// Shows each of the form's texts to `visit`, in the order in which the controls were made.
    virtual void VisitTexts(const std::function<void(const TText&)>& visit) = 0;
};

/// The host object that loads and owns library items. Implemented by the host; a form works without one (null): it then
/// keeps its built-in texts, shows the framework's own boxes (ApplicationMessageBox) and opens no lists.
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
