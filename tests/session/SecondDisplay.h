#pragma once

#include <QProcess>
#include <QString>

/// Another virtual display with a window manager, as a colleague's machine has one: an open menu holds the keys and the
/// pointer of its own display only. It ends with this object, also when the test program ends badly.
class SecondDisplay {
public:
    /// Throws std::runtime_error when it does not come up.
    SecondDisplay();
    SecondDisplay(const SecondDisplay&) = delete;
    SecondDisplay& operator=(const SecondDisplay&) = delete;
    ~SecondDisplay();

    /// As the variable DISPLAY names it.
    const QString& name() const { return name_; }

private:
    QProcess runner_;
    QString name_;
};
