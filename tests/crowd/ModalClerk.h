#pragma once

#include "tests/crowd/ClerkTask.h"
#include "tests/crowd/Diary.h"

#include <QElapsedTimer>
#include <QObject>

#include <random>
#include <string>

class QWidget;

namespace crowd {

/// What a clerk does with the modal windows of one document, key by key, at the pace of somebody who reads what he
/// types from paper: names the source, types values into some lines, saves, reads what is refused. He mistypes a number
/// now and then. One who is refused what he cannot help closes the window.
class ModalClerk : public QObject {
public:
    /// Works as long as it lives, inside the windows' own loops; `quantity` is typed into the first line.
    ModalClerk(const ClerkTask& task, int quantity, std::mt19937& random, DiaryPen& diary);

    bool hasGivenUp() const { return hasGivenUp_; }

    bool eventFilter(QObject* object, QEvent* event) override;

private:
    /// Acts once more after so many milliseconds.
    void after(int milliseconds);
    void act();
    void nameSource(QWidget& dialog);
    void edit(QWidget& editor);
    void read(QWidget& message);
    void giveUp(QWidget& window);
    int between(int lowest, int highest);

    const ClerkTask& task_;
    std::mt19937& random_;
    DiaryPen& diary_;
    std::string number_;      ///< What he types into the dialog.
    std::size_t letters_ = 0; ///< Of the number, typed already.
    bool isMistyped_ = false;
    bool isRefused_ = false; ///< Since the last thing that he tried.
    bool hasGivenUp_ = false;
    std::vector<std::string> values_; ///< By the stops of Enter; empty where he passes by.
    std::size_t stop_ = 0;
    QElapsedTimer opening_; ///< Runs until the editor is painted.
};

} // namespace crowd
