#pragma once

#include "host/Types.h"
#include "host/widgets/Form.h"
#include "host/widgets/Vocabulary.h"

#include <vector>

class QKeyEvent;
class QVBoxLayout;
class TLibraryManager;
class TQelPngBitBtn;
class TQelPngSpeedButton;

/// One line of a selection dialog: what is asked, the edit for the answer, the button of the lookup list.
struct TSelectLine {
    TLabel* Label = nullptr;
    TEdit* Edit = nullptr;
    TQelPngSpeedButton* Button = nullptr;
};

/// What the selection dialogs do alike: the panels, OK and Cancel, lines with an edit and a lookup list, their keys and
/// images. A dialog adds its lines when it is built and answers the events; a line's controls carry its tag.
class TSelectForm : public TForm {
    Q_OBJECT

public:
    ~TSelectForm() override;

    /// What OK checks; an error keeps the dialog open.
    virtual void OkBtnClick(TObject* Sender) = 0;
    virtual void editSelectChange(TObject* Sender) = 0;
    virtual void SelectSpeedButtonClick(TObject* Sender) = 0;
    /// F5 opens the list, Esc cancels; true when the key was one of them.
    bool editSelectKeyDown(TObject* Sender, const QKeyEvent& key);

protected:
    TSelectForm(TComponent* aOwner, TLibraryManager* aLibraryManager);

    /// The panels, as wide as the form may be at least and as high as it always is.
    void CreatePanels(int minimumWidth, int height);
    /// Adds a line to the main panel; its controls' names end in `suffix`.
    TSelectLine CreateLine(const QString& suffix, int tag);
    /// Adds OK and Cancel to the button panel: after the last line, so that Tab reaches them last.
    void CreateButtons();
    QVBoxLayout& MainColumn() { return *FMainColumn; }

    /// Hands the built form to the localisation and names the buttons that have no caption.
    void LocalizeLines(std::string_view section);
    static void SetLabel(const TSelectLine& line, const AnsiString& text);
    /// The text of a language key of the module, given without the common prefix.
    static AnsiString EditorText(const char* key, const char* fallback);
    /// The tag of a line's control, 0 for anything else.
    static int TagOf(const TObject* sender);

    /// Lets the user pick a row of the host's lookup list into the line; `id` becomes the picked row's. A cancelled
    /// list changes nothing.
    void PickFromList(const TSelectLine& line, int& id, const AnsiString& hostForm, const AnsiString& displayColumn,
                      const AnsiString& condition);
    TLibraryManager* LibraryManager() const { return FLibraryManager; }

    void FormShow() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    TLibraryManager* FLibraryManager;
    TPanel* MainPanel = nullptr;
    TPanel* ButtonPanel = nullptr;
    TQelPngBitBtn* OkBtn = nullptr;
    TQelPngBitBtn* CancelBtn = nullptr;
    QVBoxLayout* FMainColumn = nullptr;
    std::vector<TSelectLine> FLines;
};
