#pragma once

#include "refhost/ErrorDisplay.h"

#include <QDialog>

class QPlainTextEdit;
class QPushButton;

namespace refhost {

/// One error in a window: the sentence in front, the details folded away behind a button, both copyable with a button
/// or the platform's copy key. Without details there is no button for them.
class ErrorDialog : public QDialog {
    Q_OBJECT
public:
    ErrorDialog(const ErrorReport& report, const Languages& languages, QWidget* parent);

private:
    void buildButtons(const Languages& languages);
    void showDetails(bool shown);
    void copy() const;

    ErrorReport report_;
    QPlainTextEdit* details_ = nullptr;
};

/// The display of the host with windows: an ErrorDialog over the active window.
class DialogErrorDisplay : public ErrorDisplay {
public:
    explicit DialogErrorDisplay(const Languages& languages);
    void show(const ErrorReport& report) override;

private:
    const Languages& languages_;
};

} // namespace refhost
