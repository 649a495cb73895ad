#pragma once

#include <QCheckBox>

#include <functional>

namespace melvark {

/// A check box that asks before the user changes it, by mouse, key or shortcut: what is done first still finds it as it
/// was, and a no leaves it so. The program sets it without asking.
class AskingCheckBox : public QCheckBox {
    Q_OBJECT

public:
    using QCheckBox::QCheckBox;

    /// True lets the change happen. An exception of the question is shown and counts as no.
    void SetMayChange(std::function<bool()> mayChange) { FMayChange = std::move(mayChange); }

protected:
    void nextCheckState() override;

private:
    std::function<bool()> FMayChange;
};

} // namespace melvark
