#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

namespace refhost {

class Languages;
struct LongWork;

/// What the user sees of a work that he waits for: that it goes on, how many rows of a save are sent, and the button
/// that stops it. Escape and the close box stop it, too. No other window takes keys or clicks meanwhile.
///
/// It only tells what is wanted (isStopWanted); whoever works ends it.
class ProgressWindow : public QDialog {
    Q_OBJECT
public:
    ProgressWindow(const Languages& languages, QWidget* parent);

    void showWork(const LongWork& work);
    bool isStopWanted() const { return isStopWanted_; }

    void reject() override;

private:
    void stop();
    QString text(const LongWork& work) const;

    const Languages& languages_;
    QLabel* text_;
    QPushButton* stopButton_;
    bool isStopWanted_ = false;
};

} // namespace refhost
