#include "refhost/ProgressWindow.h"

#include "refhost/Languages.h"
#include "refhost/database/ThreadedConnection.h"

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace refhost {

namespace {

constexpr int c_width = 320;

} // namespace

ProgressWindow::ProgressWindow(const Languages& languages, QWidget* parent)
    : QDialog(parent),
      languages_(languages),
      text_(new QLabel(this)),
      stopButton_(new QPushButton(languages.label(texts::progressStop), this)) {
    setObjectName(u"progressWindow");
    setWindowTitle(languages.label(texts::progressTitle));
    setWindowModality(Qt::ApplicationModal);

    text_->setObjectName(u"progressText");
    text_->setTextFormat(Qt::PlainText);
    text_->setMinimumWidth(c_width);
    auto* bar = new QProgressBar(this);
    bar->setObjectName(u"progressBar");
    bar->setRange(0, 0); // how much there is to do only the database knows
    bar->setTextVisible(false);
    stopButton_->setObjectName(u"stopButton");
    stopButton_->setDefault(true);
    stopButton_->setFocus();
    connect(stopButton_, &QPushButton::clicked, this, &ProgressWindow::stop);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->setSpacing(12);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(text_);
    layout->addWidget(bar);
    layout->addWidget(stopButton_, 0, Qt::AlignRight);
}

void ProgressWindow::showWork(const LongWork& work) {
    text_->setText(text(work));
    stopButton_->setEnabled(work.MayStop && !isStopWanted_);
}

QString ProgressWindow::text(const LongWork& work) const {
    if (isStopWanted_) {
        return languages_.label(texts::progressStopping);
    }
    if (!work.MayStop) {
        return languages_.label(texts::progressClosing);
    }
    return work.RowsSent ? languages_.label(texts::progressRows).arg(*work.RowsSent)
                         : languages_.label(texts::progressWaiting);
}

void ProgressWindow::reject() {
    if (stopButton_->isEnabled()) {
        stop();
    }
}

void ProgressWindow::stop() {
    isStopWanted_ = true;
    stopButton_->setEnabled(false);
    text_->setText(languages_.label(texts::progressStopping));
}

} // namespace refhost
