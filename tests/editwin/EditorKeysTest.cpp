#include "editwin/EditorKeys.h"

#include <QKeyEvent>

#include <gtest/gtest.h>

using namespace melvark;

namespace {

struct KeyCase {
    const char* remark;
    int key;
    Qt::KeyboardModifiers modifiers;
    EditorCommand down;
    EditorCommand press;
};

const KeyCase c_Cases[] = {
    {"Enter", Qt::Key_Return, {}, EditorCommand::None, EditorCommand::GoNext},
    {"Enter of the keypad", Qt::Key_Enter, Qt::KeypadModifier, EditorCommand::None, EditorCommand::GoNext},
    {"Shift+Enter", Qt::Key_Return, Qt::ShiftModifier, EditorCommand::None, EditorCommand::GoPrevious},
    {"Ctrl+Enter", Qt::Key_Return, Qt::ControlModifier, EditorCommand::Confirm, EditorCommand::None},
    {"Ctrl+Shift+Enter still confirms", Qt::Key_Enter, Qt::ControlModifier | Qt::ShiftModifier, EditorCommand::Confirm,
     EditorCommand::None},
    {"Alt+Enter has no character", Qt::Key_Return, Qt::AltModifier, EditorCommand::None, EditorCommand::None},
    {"Alt+C", Qt::Key_C, Qt::AltModifier, EditorCommand::RecalculationOff, EditorCommand::None},
    {"Alt+keypad 3 has the code of a small c", Qt::Key_3, Qt::AltModifier | Qt::KeypadModifier,
     EditorCommand::RecalculationOff, EditorCommand::None},
    {"Alt+3 above the letters has another code", Qt::Key_3, Qt::AltModifier, EditorCommand::None, EditorCommand::None},
    {"Alt+P", Qt::Key_P, Qt::AltModifier, EditorCommand::RecalculationOn, EditorCommand::None},
    {"Alt+F1 has the code of a small p", Qt::Key_F1, Qt::AltModifier, EditorCommand::RecalculationOn,
     EditorCommand::None},
    {"C alone is a letter", Qt::Key_C, {}, EditorCommand::None, EditorCommand::None},
    {"Ctrl+C copies", Qt::Key_C, Qt::ControlModifier, EditorCommand::None, EditorCommand::None},
    {"F1 alone", Qt::Key_F1, {}, EditorCommand::None, EditorCommand::None},
    {"Escape has no handler", Qt::Key_Escape, {}, EditorCommand::None, EditorCommand::None},
    {"Tab has no handler", Qt::Key_Tab, {}, EditorCommand::None, EditorCommand::None},
    {"arrows have no handler", Qt::Key_Down, {}, EditorCommand::None, EditorCommand::None},
};

} // namespace

TEST(EditorKeys, EachKeyHasItsOneMeaning) {
    for (const KeyCase& each : c_Cases) {
        const QKeyEvent event(QEvent::KeyPress, each.key, each.modifiers);
        EXPECT_EQ(KeyDownCommand(event), each.down) << each.remark;
        EXPECT_EQ(KeyPressCommand(event), each.press) << each.remark;
    }
}

TEST(EditorKeys, EnterInTheGridConfirmsOrMoves) {
    EXPECT_EQ(EnterCommand({}), EditorCommand::GoNext);
    EXPECT_EQ(EnterCommand(Qt::KeypadModifier), EditorCommand::GoNext);
    EXPECT_EQ(EnterCommand(Qt::ShiftModifier), EditorCommand::GoPrevious);
    EXPECT_EQ(EnterCommand(Qt::ControlModifier), EditorCommand::Confirm);
    EXPECT_EQ(EnterCommand(Qt::ControlModifier | Qt::ShiftModifier), EditorCommand::Confirm);
}
