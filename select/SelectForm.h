#pragma once

#include "host/Exceptions.h"
#include "host/Identifier.h"
#include "host/LiveData.h"
#include "host/Types.h"
#include "host/widgets/Form.h"
#include "host/widgets/Vocabulary.h"

#include <cstddef>
#include <functional>
#include <vector>

class QKeyEvent;
class QVBoxLayout;
class TLibraryManager;
class TQelPngBitBtn;
class TQelPngSpeedButton;

/// The selection's own failures.
class ESelectBox : public Exception {
public:
    using Exception::Exception;
    ESelectBox(const ESelectBox&) = default;
    ESelectBox& operator=(const ESelectBox&) = default;
    ~ESelectBox() override;
};

/// One line of a selection dialog: what is asked, the edit for the answer, the button of the lookup list, and what is
/// known of the answer.
struct TSelectLine {
    TLabel* Label = nullptr;
    TEdit* Edit = nullptr;
    TQelPngSpeedButton* Button = nullptr;
    int ID = c_NullValue; ///< Of what was picked or confirmed; -1 when nothing was.
    // What a set-up installs; empty before.
    std::function<void()> Check{};
    std::function<void()> ShowDlg{};
};

/// How a line's answer is asked of the database.
struct TSelectCheck {
    const char* Procedure;
    const char* DocumentParam; ///< First: the document that is being edited.
    const char* TextParam;     ///< Second: what stands in the edit.
    const char* IdParam;       ///< Third: the line's id, null for none.
};

/// What the selection dialogs do alike: the panels, OK and Cancel, lines with an edit and a lookup list, their checks,
/// keys and images. A dialog adds its lines when it is built; its set-ups install their operations. Line n's controls
/// carry the tag n + 1.
class TSelectForm : public TForm {
    Q_OBJECT

public:
    ~TSelectForm() override;

    /// Runs the checks line by line, with the focus on the line being checked, then the one of the whole; an error of
    /// one of them keeps the dialog open.
    void OkBtnClick(TObject* Sender);
    /// The line whose edit changed names nothing any more; any other sender changes nothing.
    void editSelectChange(TObject* Sender);
    /// Runs the lookup of the sender's line.
    void SelectSpeedButtonClick(TObject* Sender);
    /// F5 opens the list, Esc cancels; true when the key was one of them.
    bool editSelectKeyDown(TObject* Sender, const QKeyEvent& key);

protected:
    TSelectForm(TComponent* aOwner, TLibraryManager* aLibraryManager);

    /// The panels, as wide as the form may be at least and as high as it always is.
    void CreatePanels(int minimumWidth, int height);
    /// Adds a line to the main panel; its controls' names end in `suffix`. A reference to a line holds until the next
    /// one is added.
    TSelectLine& CreateLine(const QString& suffix);
    /// Adds OK and Cancel to the button panel: after the last line, so that Tab reaches them last.
    void CreateButtons();
    QVBoxLayout& MainColumn() { return *FMainColumn; }
    TSelectLine& Line(std::size_t number) { return FLines.at(number); }
    const TSelectLine& Line(std::size_t number) const { return FLines.at(number); }
    std::size_t LineCount() const { return FLines.size(); }

    /// Hands the built form to the localisation and names the buttons that have no caption.
    void LocalizeLines(std::string_view section);
    static void SetLabel(const TSelectLine& line, const AnsiString& text);
    /// The text of a language key of the module, given without the common prefix.
    static AnsiString EditorText(const char* key, const char* fallback);

    /// What OK checks once every line was accepted; nothing unless a dialog says so.
    virtual void CheckTogether() {}
    static void Run(const std::function<void()>& operation);
    /// Why a choice is no choice of the database's, in the user's language.
    static ESelectBox NotConfirmed();
    /// The database's answer to what the line names, as its result's "ID". Throws EDatabaseError when it refuses,
    /// ESelectBox when the check reports failure.
    static TField AskDatabase(const TSelectLine& line, const TSelectCheck& check, int documentId);
    /// Lets the user pick a row of the host's lookup list into the line, whose id becomes the picked row's. A cancelled
    /// list changes nothing.
    void PickFromList(TSelectLine& line, const AnsiString& hostForm, const AnsiString& displayColumn,
                      const AnsiString& condition);

    void FormShow() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// The line that the sender's tag names; null for anything else.
    TSelectLine* LineOf(const TObject* sender);

    TLibraryManager* FLibraryManager;
    TPanel* MainPanel = nullptr;
    TPanel* ButtonPanel = nullptr;
    TQelPngBitBtn* OkBtn = nullptr;
    TQelPngBitBtn* CancelBtn = nullptr;
    QVBoxLayout* FMainColumn = nullptr;
    std::vector<TSelectLine> FLines;
};
