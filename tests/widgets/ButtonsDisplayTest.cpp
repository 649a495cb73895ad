#include "host/widgets/Buttons.h"
#include "tests/widgets/RealInput.h"

#include <QMenu>

TEST(ButtonsOnDisplay, AMenuButtonDropsItsMenuDownByMouseAndKeyboard) {
    QWidget window;
    TMenuButton button(&window);
    QMenu menu;
    menu.addAction(QStringLiteral("Uložit"));
    button.SetPopupMenu(&menu);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    realinput::click(button, button.rect().center());
    EXPECT_TRUE(QTest::qWaitFor([&] { return menu.isVisible(); }));
    EXPECT_EQ(menu.pos(), button.mapToGlobal(button.rect().bottomLeft()));
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Down, Qt::Key_Space}) {
        menu.close();
        QTest::keyClick(&button, key);
        EXPECT_TRUE(menu.isVisible()) << key;
    }
    menu.close();
}
