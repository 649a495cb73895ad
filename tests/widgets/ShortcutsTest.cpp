#include "host/widgets/Shortcuts.h"

#include <QCheckBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

/// An edit that writes down the keys it got together with Alt.
class ProbeEdit : public QLineEdit {
public:
    using QLineEdit::QLineEdit;
    QList<int> altKeys;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->modifiers().testFlag(Qt::AltModifier) || event->key() == Qt::Key_Alt) {
            altKeys += event->key() == Qt::Key_Alt ? QList<int>() : QList<int>{event->key()};
        } else {
            QLineEdit::keyPressEvent(event);
        }
    }
};

class ShortcutsTest : public testing::Test {
protected:
    ShortcutsTest() {
        layout.addWidget(&check);
        layout.addWidget(&edit);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        edit.setFocus();
    }

    QWidget window;
    QVBoxLayout layout{&window};
    QCheckBox check{QStringLiteral("&po zadání hodnoty")};
    ProbeEdit edit;
};

} // namespace

TEST_F(ShortcutsTest, ACaptionsLetterTakesItsAltKeyFromAnEditThatDoesNotClaimIt) {
    QTest::keyClick(&edit, Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return check.isChecked(); })); // a shortcut presses the box visibly first
    EXPECT_TRUE(edit.altKeys.isEmpty());
}

TEST_F(ShortcutsTest, AClaimedAltKeyReachesTheEditAlone) {
    melvark::ClaimAltKeys(edit, {Qt::Key_P, Qt::Key_C});
    QTest::keyClick(&edit, Qt::Key_P, Qt::AltModifier);
    EXPECT_FALSE(check.isDown() || check.isChecked());
    EXPECT_EQ(edit.altKeys, QList<int>{Qt::Key_P});
}

TEST_F(ShortcutsTest, OtherAltKeysKeepTheirMeaning) {
    melvark::ClaimAltKeys(edit, {Qt::Key_C});
    QTest::keyClick(&edit, Qt::Key_P, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return check.isChecked(); })); // a shortcut presses the box visibly first
}

TEST_F(ShortcutsTest, AClaimedKeyWithoutAltKeepsItsMeaning) {
    melvark::ClaimAltKeys(edit, {Qt::Key_F1});
    QShortcut help(QKeySequence(Qt::Key_F1), &window);
    QSignalSpy asked(&help, &QShortcut::activated);
    QTest::keyClick(&edit, Qt::Key_F1);
    EXPECT_EQ(asked.count(), 1);
    QTest::keyClick(&edit, Qt::Key_F1, Qt::AltModifier);
    EXPECT_EQ(edit.altKeys, QList<int>{Qt::Key_F1});
}

TEST_F(ShortcutsTest, ALetterWithoutAltIsTyped) {
    melvark::ClaimAltKeys(edit, {Qt::Key_P});
    QTest::keyClick(&edit, Qt::Key_P);
    EXPECT_EQ(edit.text(), QStringLiteral("p"));
}
