#include "refhost/ErrorDialog.h"

#include "host/widgets/Guard.h"
#include "refhost/Languages.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace refhost {

namespace {

constexpr int c_sentenceWidth = 380;
constexpr int c_detailLines = 6;

QLabel* createIcon(QWidget* parent) {
    auto* icon = new QLabel(parent);
    const int size = parent->style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, parent);
    icon->setPixmap(parent->style()
                        ->standardIcon(QStyle::SP_MessageBoxCritical, nullptr, parent)
                        .pixmap(QSize(size, size), parent->devicePixelRatioF()));
    icon->setAlignment(Qt::AlignTop);
    return icon;
}

QLabel* createSentence(const std::string& text, QWidget* parent) {
    auto* sentence = new QLabel(parent);
    sentence->setObjectName(u"errorSentence");
    sentence->setTextFormat(Qt::PlainText);
    sentence->setText(QString::fromStdString(text));
    sentence->setWordWrap(true);
    sentence->setMinimumWidth(c_sentenceWidth);
    sentence->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return sentence;
}

QPlainTextEdit* createDetails(const std::string& text, const QString& name, QWidget* parent) {
    auto* details = new QPlainTextEdit(QString::fromStdString(text), parent);
    details->setObjectName(u"errorDetails");
    details->setAccessibleName(name);
    details->setReadOnly(true);
    details->setTabChangesFocus(true);
    details->setFixedHeight(details->fontMetrics().lineSpacing() * (c_detailLines + 1));
    details->hide();
    return details;
}

} // namespace

ErrorDialog::ErrorDialog(const ErrorReport& report, const Languages& languages, QWidget* parent,
                         std::function<void()> writeReport)
    : QDialog(parent), report_(report), writeReport_(std::move(writeReport)) {
    setObjectName(u"errorDialog");
    setWindowTitle(languages.label(texts::errorCaption));

    auto* front = new QHBoxLayout;
    front->setSpacing(12);
    front->addWidget(createIcon(this));
    front->addWidget(createSentence(report.sentence, this), 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->setSpacing(12);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addLayout(front);
    buildButtons(languages);
    if (!report.details.empty()) {
        details_ = createDetails(report.details, languages.label(texts::errorDetailsName), this);
        layout->addWidget(details_);
    }

    auto* copyAction = new QAction(this);
    copyAction->setObjectName(u"copyAction");
    copyAction->setShortcut(QKeySequence::Copy);
    connect(copyAction, &QAction::triggered, this, &ErrorDialog::copy);
    addAction(copyAction);
}

void ErrorDialog::buildButtons(const Languages& languages) {
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    if (!report_.details.empty()) {
        auto* detailsButton = new QPushButton(languages.label(texts::errorDetails), this);
        detailsButton->setObjectName(u"detailsButton");
        detailsButton->setCheckable(true);
        detailsButton->setAutoDefault(false);
        connect(detailsButton, &QPushButton::toggled, this, &ErrorDialog::showDetails);
        buttons->addWidget(detailsButton);
    }
    buttons->addStretch(1);

    if (writeReport_) {
        auto* reportButton = new QPushButton(languages.label(texts::errorReport), this);
        reportButton->setObjectName(u"reportButton");
        reportButton->setAutoDefault(false);
        melvark::ConnectGuarded(reportButton, &QPushButton::clicked, this, [this] { writeReport_(); });
        buttons->addWidget(reportButton);
    }
    auto* copyButton = new QPushButton(languages.label(texts::errorCopy), this);
    copyButton->setObjectName(u"copyButton");
    copyButton->setAutoDefault(false);
    connect(copyButton, &QPushButton::clicked, this, &ErrorDialog::copy);
    buttons->addWidget(copyButton);

    auto* closeButton = new QPushButton(languages.label(texts::errorClose), this);
    closeButton->setObjectName(u"closeButton");
    closeButton->setDefault(true);
    closeButton->setFocus();
    connect(closeButton, &QPushButton::clicked, this, &QDialog::accept);
    buttons->addWidget(closeButton);
    static_cast<QVBoxLayout*>(layout())->addLayout(buttons);
}

void ErrorDialog::showDetails(bool shown) {
    details_->setVisible(shown);
}

void ErrorDialog::copy() const {
    std::string text = report_.sentence;
    if (!report_.details.empty()) {
        text += "\n\n" + report_.details;
    }
    QApplication::clipboard()->setText(QString::fromStdString(text));
}

DialogErrorDisplay::DialogErrorDisplay(const Languages& languages, std::function<void()> writeReport)
    : languages_(languages), writeReport_(std::move(writeReport)) {}

void DialogErrorDisplay::show(const ErrorReport& report) {
    ErrorDialog(report, languages_, QApplication::activeWindow(), writeReport_).exec();
}

} // namespace refhost
