#include "host/widgets/MessageBox.h"

#include "host/Exceptions.h"
#include "host/LangStr.h"
#include "host/widgets/Text.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

#include <string_view>

using melvark::ToQString;

namespace {

constexpr int c_ButtonBits = 0x0f;
constexpr int c_YesNoButtons = 0x04;
constexpr int c_IconBits = 0xf0;

QMessageBox::Icon IconOf(int flags) {
    switch (flags & c_IconBits) {
    case 0x10:
        return QMessageBox::Critical;
    case 0x20:
        return QMessageBox::Question;
    case 0x30:
        return QMessageBox::Warning;
    case 0x40:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

AnsiString ButtonText(std::string_view key, std::string_view builtIn) {
    try {
        return LangStr(key, {}, builtIn);
    } catch (const EHostError&) { // a box must come up even before a host is installed
        return AnsiString(builtIn);
    }
}

QPushButton* AddButton(QMessageBox& box, const AnsiString& text, QMessageBox::ButtonRole role, const QString& name) {
    QPushButton* button = box.addButton(ToQString(text), role);
    button->setObjectName(name);
    return button;
}

int AskYesNo(QMessageBox& box) {
    QPushButton* yes = AddButton(box, ButtonText(R"(KORDAN30\MESSAGEBOX\YES)", "&Ano"), QMessageBox::YesRole,
                                 QStringLiteral("YesBtn"));
    QPushButton* no =
        AddButton(box, ButtonText(R"(KORDAN30\MESSAGEBOX\NO)", "&Ne"), QMessageBox::NoRole, QStringLiteral("NoBtn"));
    box.setDefaultButton(yes);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes ? c_ResultYes : c_ResultNo;
}

int Tell(QMessageBox& box) {
    QPushButton* ok =
        AddButton(box, ButtonText(R"(KORDAN30\MESSAGEBOX\OK)", "OK"), QMessageBox::AcceptRole, QStringLiteral("OkBtn"));
    box.setDefaultButton(ok);
    box.setEscapeButton(ok);
    box.exec();
    return c_ResultOk;
}

} // namespace

int ApplicationMessageBox(const AnsiString& text, const AnsiString& caption, int flags) {
    QMessageBox box(QApplication::activeModalWidget() ? QApplication::activeModalWidget()
                                                      : QApplication::activeWindow());
    box.setObjectName(QStringLiteral("MessageBox"));
    box.setIcon(IconOf(flags));
    box.setWindowTitle(ToQString(caption));
    box.setTextFormat(Qt::PlainText);
    box.setText(ToQString(text));
    return (flags & c_ButtonBits) == c_YesNoButtons ? AskYesNo(box) : Tell(box);
}
