#include "dialogs/MelvarkEditorColumnPropWin.h"
#include "dialogs/MelvarkEditorSettingsWin.h"
#include "tests/support/RecordingHost.h"
#include "tests/widgets/ModalDriver.h"

#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>
#include <memory>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

template <class Box>
std::unique_ptr<TPropertyBox> make(TLibraryManager* manager) {
    return std::make_unique<Box>(nullptr, manager);
}

/// One of the two dialogs.
struct DialogRow {
    const char* name;
    std::unique_ptr<TPropertyBox> (*make)(TLibraryManager* manager);
    const char* edit;
    const char* memo;
    const char* section;
    const char* refusal;
    QSize least;
};

void PrintTo(const DialogRow& row, std::ostream* out) {
    *out << row.name;
}

class PropertyBox : public testing::TestWithParam<DialogRow> {
protected:
    PropertyBox() { remake(&manager); }

    void remake(TLibraryManager* with) {
        box = GetParam().make(with);
        edit = box->findChild<QLineEdit*>(QString::fromLatin1(GetParam().edit));
        memo = box->findChild<QPlainTextEdit*>(QString::fromLatin1(GetParam().memo));
    }

    /// Shows the dialog modally and acts on it; a dialog that is still open afterwards is closed by its close box.
    int showAnd(const std::function<void()>& act) {
        const QObject showing;
        const ModalDriver driver(box->objectName(), [&](QWidget& window) {
            EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
            act();
            QTimer::singleShot(0, &showing, [this, &window] {
                stayedOpen = box->ModalResult() == 0;
                if (stayedOpen) {
                    window.close();
                }
            });
        });
        return box->ShowModal();
    }

    QPushButton* button(const QString& name) { return box->findChild<QPushButton*>(name); }

    RecordingHost host;
    TScopedHost installed{host};
    RecordingLibraryManager manager;
    std::unique_ptr<TPropertyBox> box;
    QLineEdit* edit = nullptr;
    QPlainTextEdit* memo = nullptr;
    bool stayedOpen = false;
};

TEST_P(PropertyBox, IsLocalisedUnderItsUnit) {
    EXPECT_THAT(manager.localizedSections(), ElementsAre(GetParam().section));
    remake(nullptr);
    EXPECT_THAT(manager.localizedSections(), ElementsAre(GetParam().section));
}

TEST_P(PropertyBox, OpensInTheMandatoryTextEachTimeItIsShown) {
    for (int showing = 0; showing < 2; ++showing) {
        showAnd([&] {
            EXPECT_EQ(box->focusWidget(), edit);
            memo->setFocus();
        });
    }
}

TEST_P(PropertyBox, LoadsTheImagesOfItsButtonsWhenItIsShown) {
    EXPECT_THAT(host.images(), IsEmpty());
    showAnd([] {});
    EXPECT_THAT(host.images(), ElementsAre("ENGINE/OK", "ENGINE/CANCEL"));
    EXPECT_FALSE(button(QStringLiteral("OkBtn"))->icon().isNull());
}

TEST_P(PropertyBox, RefusesATextOfBlanksAndStaysOpenWithTheFocusThere) {
    for (const QString& text : {QStringLiteral(""), QStringLiteral(" \t ")}) {
        remake(&manager);
        EXPECT_EQ(showAnd([&] {
                      edit->setText(text);
                      memo->setFocus();
                      manager.whileBoxIsShown = [&] { EXPECT_EQ(box->focusWidget(), edit); };
                      QTest::mouseClick(button(QStringLiteral("OkBtn")), Qt::LeftButton);
                  }),
                  c_ResultCancel);
        EXPECT_TRUE(stayedOpen);
        EXPECT_EQ(box->focusWidget(), edit);
    }
    const AnsiString refused = AnsiString("16: ") + GetParam().refusal;
    EXPECT_THAT(manager.boxes(), ElementsAre(refused, refused));
}

TEST_P(PropertyBox, WithoutAManagerTheRefusalIsTheApplicationsOwnBox) {
    remake(nullptr);
    bool wasShown = false;
    showAnd([&] {
        const ModalDriver driver(QStringLiteral("MessageBox"), [&](QWidget& message) {
            wasShown = true;
            EXPECT_EQ(message.windowTitle(), QStringLiteral("Chyba"));
            bool hasSentence = false;
            for (const QLabel* label : message.findChildren<QLabel*>()) {
                hasSentence = hasSentence || label->text() == QString::fromUtf8(GetParam().refusal);
            }
            EXPECT_TRUE(hasSentence);
            message.close();
        });
        button(QStringLiteral("OkBtn"))->click();
    });
    EXPECT_TRUE(wasShown);
    EXPECT_TRUE(stayedOpen);
}

TEST_P(PropertyBox, AcceptsATextWithBlanksAroundItAsItIs) {
    EXPECT_EQ(showAnd([&] {
                  QTest::keyClicks(edit, QStringLiteral(" Zelenina "));
                  QTest::mouseClick(button(QStringLiteral("OkBtn")), Qt::LeftButton);
              }),
              c_ResultOk);
    EXPECT_EQ(edit->text(), QStringLiteral(" Zelenina "));
    EXPECT_THAT(manager.boxes(), IsEmpty());
}

TEST_P(PropertyBox, EnterConfirmsFromTheMandatoryText) {
    EXPECT_EQ(showAnd([&] {
                  QTest::keyClicks(edit, QStringLiteral("Zelenina"));
                  QTest::keyClick(edit, Qt::Key_Return);
              }),
              c_ResultOk);
}

TEST_P(PropertyBox, EnterBreaksTheLineInTheMemo) {
    edit->setText(QStringLiteral("Zelenina"));
    EXPECT_EQ(showAnd([&] {
                  memo->setFocus();
                  QTest::keyClicks(memo, QStringLiteral("a"));
                  QTest::keyClick(memo, Qt::Key_Return);
                  QTest::keyClicks(memo, QStringLiteral("b"));
              }),
              c_ResultCancel);
    EXPECT_TRUE(stayedOpen);
    EXPECT_EQ(memo->toPlainText(), QStringLiteral("a\nb"));
}

TEST_P(PropertyBox, TabLeavesTheMemo) {
    showAnd([&] {
        memo->setFocus();
        QTest::keyClick(memo, Qt::Key_Tab);
        EXPECT_NE(box->focusWidget(), memo);
    });
    EXPECT_EQ(memo->toPlainText(), QString());
}

TEST_P(PropertyBox, EscapeCancelsFromEveryTextWithoutACheck) {
    for (QWidget* const from : {static_cast<QWidget*>(edit), static_cast<QWidget*>(memo)}) {
        EXPECT_EQ(showAnd([&] {
                      from->setFocus();
                      QTest::keyClick(from, Qt::Key_Escape);
                  }),
                  c_ResultCancel);
        EXPECT_FALSE(stayedOpen) << from->objectName().toStdString();
    }
    EXPECT_THAT(manager.boxes(), IsEmpty());
}

TEST_P(PropertyBox, CancelAndTheCloseBoxAskNothing) {
    EXPECT_EQ(showAnd([&] { button(QStringLiteral("CancelBtn"))->click(); }), c_ResultCancel);
    EXPECT_FALSE(stayedOpen);
    EXPECT_EQ(showAnd([&] { box->close(); }), c_ResultCancel);
    EXPECT_THAT(manager.boxes(), IsEmpty());
}

TEST_P(PropertyBox, OpensAtItsLeastSizeOrWhatItsTextsNeed) {
    showAnd([&] {
        const QSize wanted = GetParam().least.expandedTo(box->layout()->totalMinimumSize());
        EXPECT_EQ(box->size(), wanted);
        EXPECT_EQ(box->minimumSize(), wanted);
    });
}

TEST_P(PropertyBox, WithTheSmallestTextsItHasItsDesignSize) {
    box->setFont(QFont(QStringLiteral("DejaVu Sans"), 4));
    for (QWidget* const control : box->findChildren<QWidget*>()) {
        control->setFont(box->font());
    }
    box->layout()->setContentsMargins(1, 1, 1, 1);
    box->layout()->setSpacing(1);
    showAnd([&] { EXPECT_EQ(box->minimumSize(), GetParam().least); });
}

TEST_P(PropertyBox, TheMemoMayBeEmpty) {
    EXPECT_EQ(showAnd([&] {
                  edit->setText(QStringLiteral("Množství"));
                  memo->clear();
                  button(QStringLiteral("OkBtn"))->click();
              }),
              c_ResultOk);
    EXPECT_THAT(manager.boxes(), IsEmpty());
}

TEST_P(PropertyBox, EachTextIsLabelled) {
    for (const QWidget* const control : {static_cast<QWidget*>(edit), static_cast<QWidget*>(memo)}) {
        const auto labels = box->findChildren<QLabel*>();
        EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
            return label->buddy() == control;
        })) << control->objectName().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, PropertyBox,
                         testing::Values(DialogRow{"Settings",
                                                   &make<TSettingsBox>,
                                                   "edtNazev",
                                                   "memKomentar",
                                                   R"(KORDAN30\MelvarkEditorSettingsWin)",
                                                   "Název musí být vyplněn",
                                                   {305, 181}},
                                         DialogRow{"ColumnProperties",
                                                   &make<TColumnPropertyBox>,
                                                   "edtCaption",
                                                   "memHint",
                                                   R"(KORDAN30\MelvarkEditorColumnPropWin)",
                                                   "Titulek musí být vyplněn",
                                                   {317, 288}}),
                         [](const auto& row) { return row.param.name; });

} // namespace
