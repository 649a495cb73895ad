#pragma once

#include "refhost/ErrorDisplay.h"

#include <QDialog>

#include <functional>

class QPlainTextEdit;
class QPushButton;

namespace refhost {

/// One error in a window: the sentence in front, the details folded away behind a button, both copyable with a button
/// or the platform's copy key. Without details there is no button for them, and none for a report on the problem
/// without somebody who writes it.
class ErrorDialog : public QDialog {
    Q_OBJECT
public:
    ErrorDialog(const ErrorReport& report, const Languages& languages, QWidget* parent,
                std::function<void()> writeReport = nullptr);

private:
    void buildButtons(const Languages& languages);
    void showDetails(bool shown);
    void copy() const;

    ErrorReport report_;
    std::function<void()> writeReport_;
    QPlainTextEdit* details_ = nullptr;
};

/// The display of the host with windows: an ErrorDialog over the active window.
class DialogErrorDisplay : public ErrorDisplay {
public:
    explicit DialogErrorDisplay(const Languages& languages, std::function<void()> writeReport = nullptr);
    void show(const ErrorReport& report) override;

private:
    const Languages& languages_;
    std::function<void()> writeReport_;
};

} // namespace refhost
