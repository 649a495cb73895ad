#include "dialogs/MelvarkEditorSettingsWin.h"

#include "tests/support/RecordingHost.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class SettingsBox : public testing::Test {
protected:
    RecordingHost host;
    TScopedHost installed{host};
    TSettingsBox box{nullptr, nullptr};
};

TEST_F(SettingsBox, IsEmptyAndNotSharedAtFirst) {
    EXPECT_EQ(box.Caption(), "Uložení nastavení");
    EXPECT_EQ(box.GetNazev(), "");
    EXPECT_EQ(box.GetPopis(), "");
    EXPECT_FALSE(box.GetSdilene());
}

TEST_F(SettingsBox, GivesBackWhatTheCallerSetAndWhatTheUserTyped) {
    box.SetNazev(" Příjem & zelenina ");
    box.SetPopis("první\ndruhý");
    box.SetSdilene(true);
    EXPECT_EQ(box.GetNazev(), " Příjem & zelenina ");
    EXPECT_EQ(box.GetPopis(), "první\ndruhý");
    EXPECT_TRUE(box.GetSdilene());
    QTest::keyClicks(box.findChild<QLineEdit*>(QStringLiteral("edtNazev")), QStringLiteral("x"));
    box.findChild<QCheckBox*>(QStringLiteral("chbSdilene"))->click();
    EXPECT_EQ(box.GetNazev(), " Příjem & zelenina x");
    EXPECT_FALSE(box.GetSdilene());
}

TEST_F(SettingsBox, HasOneSize) {
    EXPECT_EQ(box.minimumSize(), box.maximumSize());
    EXPECT_EQ(box.findChild<QPlainTextEdit*>(QStringLiteral("memKomentar"))->minimumHeight(), 89);
    EXPECT_EQ(box.findChild<QLineEdit*>(QStringLiteral("edtNazev"))->minimumWidth(), 205);
}

} // namespace
