#include "dialogs/MelvarkEditorColumnPropWin.h"

#include "tests/support/RecordingHost.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

namespace {

class ColumnPropertyBox : public testing::Test {
protected:
    QWidget& control(const char* name) { return *box.findChild<QWidget*>(QString::fromLatin1(name)); }

    RecordingHost host;
    TScopedHost installed{host};
    TColumnPropertyBox box{nullptr, nullptr};
};

TEST_F(ColumnPropertyBox, GivesBackTheTextsAsTheyAre) {
    EXPECT_EQ(box.Caption(), "Vlastnosti sloupce");
    box.SetColumnCaption(" Množství & cena ");
    box.SetColumnHint("první\ndruhý");
    EXPECT_EQ(box.GetColumnCaption(), " Množství & cena ");
    EXPECT_EQ(box.GetColumnHint(), "první\ndruhý");
}

TEST_F(ColumnPropertyBox, ShowsTheAlignmentAsOneButton) {
    const std::pair<TColumnAlign, const char*> rows[] = {
        {caRight, "rbAlignRight"}, {caCenter, "rbAlignCenter"}, {caLeft, "rbAlignLeft"}};
    for (const auto& [align, name] : rows) {
        box.SetColumnAlign(align);
        EXPECT_EQ(box.GetColumnAlign(), align);
        for (const QRadioButton* button : box.findChildren<QRadioButton*>()) {
            EXPECT_EQ(button->isChecked(), button->objectName() == QString::fromLatin1(name)) << name;
        }
    }
}

TEST_F(ColumnPropertyBox, AnUnknownAlignmentShowsAsLeft) {
    box.SetColumnAlign(caRight);
    box.SetColumnAlign(static_cast<TColumnAlign>(7));
    EXPECT_TRUE(box.findChild<QRadioButton*>(QStringLiteral("rbAlignLeft"))->isChecked());
    EXPECT_EQ(box.GetColumnAlign(), caLeft);
}

TEST_F(ColumnPropertyBox, TheTextsStretchAndTheRestStaysAtTheBottom) {
    box.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&box));
    const QSize small = box.size();
    const auto fromBottom = [this](const char* name) { return box.height() - control(name).geometry().bottom(); };
    const QSize memo = control("memHint").size();
    const int edit = control("edtCaption").width();
    const int alignment = fromBottom("rbAlignLeft");
    const int line = fromBottom("Bevel1");
    const int button = fromBottom("OkBtn");
    box.resize(small + QSize(120, 90));
    QCoreApplication::processEvents();
    EXPECT_EQ(control("memHint").size(), memo + QSize(120, 90));
    EXPECT_EQ(control("edtCaption").width(), edit + 120);
    EXPECT_EQ(fromBottom("rbAlignLeft"), alignment);
    EXPECT_EQ(fromBottom("Bevel1"), line);
    EXPECT_EQ(fromBottom("OkBtn"), button);
}

} // namespace
