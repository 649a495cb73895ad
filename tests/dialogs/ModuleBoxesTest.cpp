#include "dialogs/ModuleBoxes.h"

#include "tests/support/RecordingHost.h"
#include "tests/widgets/ModalDriver.h"

#include <QPushButton>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

class ModuleBoxes : public testing::Test {
protected:
    RecordingHost host;
    TScopedHost installed{host};
    RecordingLibraryManager manager;
};

TEST_F(ModuleBoxes, AreTheManagersOwn) {
    manager.boxAnswers = {c_ResultOk, c_ResultYes};
    EXPECT_EQ(melvark::ErrorBox(&manager, "Chybí název"), c_ResultOk);
    EXPECT_EQ(melvark::ConfirmBox(&manager, "Smazat?"), c_ResultYes);
    EXPECT_THAT(manager.boxes(), ElementsAre("16: Chybí název", "36: Smazat?"));
}

TEST_F(ModuleBoxes, TellANoteAsTheManagersMessage) {
    melvark::NoteBox(&manager, "Jiné okno");
    EXPECT_THAT(manager.messages(), ElementsAre("O#: Jiné okno"));
    EXPECT_THAT(manager.boxes(), testing::IsEmpty());
}

TEST_F(ModuleBoxes, HaveATitleWithoutAManager) {
    QString title;
    const auto press = [&title](const char* name) {
        return [&title, name](QWidget& box) {
            title = box.windowTitle();
            box.findChild<QPushButton*>(QString::fromLatin1(name))->click();
        };
    };
    const ModalDriver error(QStringLiteral("MessageBox"), press("OkBtn"));
    EXPECT_EQ(melvark::ErrorBox(nullptr, "x"), c_ResultOk);
    EXPECT_EQ(title, QStringLiteral("Chyba"));
    const ModalDriver question(QStringLiteral("MessageBox"), press("YesBtn"));
    EXPECT_EQ(melvark::ConfirmBox(nullptr, "x"), c_ResultYes);
    EXPECT_EQ(title, QStringLiteral("Potvrzení"));
}

} // namespace
