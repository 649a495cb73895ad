#include "refhost/screens/MainWindow.h"

#include "host/widgets/Guard.h"
#include "host/widgets/Text.h"
#include "refhost/Languages.h"
#include "refhost/screens/DocumentScreen.h"
#include "refhost/screens/Screens.h"

#include <QAction>
#include <QCloseEvent>
#include <QFrame>
#include <QLabel>
#include <QMenuBar>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScreen>
#include <QStatusBar>
#include <QStyle>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QVBoxLayout>

namespace refhost {

namespace {

constexpr QSize c_startSize(1100, 720);

QAction* createAction(QObject* parent, const char16_t* name, const QString& text, const QKeySequence& key) {
    auto* action = new QAction(text, parent);
    action->setObjectName(QString::fromUtf16(name));
    action->setShortcut(key);
    return action;
}

/// A label that never widens its window: a text without room ends in dots.
class ElidedLabel : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QRect room = contentsRect();
        style()->drawItemText(&painter, room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                              fontMetrics().elidedText(text(), Qt::ElideRight, room.width()), foregroundRole());
    }
};

} // namespace

MainWindow::MainWindow(MainWindowParts parts) : parts_(std::move(parts)), place_(*this) {
    setObjectName(u"mainWindow");
    setWindowTitle(parts_.languages.label(texts::applicationTitle));
    auto* center = new QWidget(this);
    auto* layout = new QVBoxLayout(center);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    tabs_ = new QTabWidget(center);
    tabs_->setObjectName(u"screens");
    tabs_->setDocumentMode(true);
    tabs_->setAccessibleName(parts_.languages.label(texts::screens));
    tabs_->tabBar()->setAccessibleName(tabs_->accessibleName()); // the bar is what has the focus
    layout->addWidget(tabs_, 1);
    setCentralWidget(center);

    buildScreens();
    buildActions();
    buildStatusBar();
    if (!parts_.moduleMissing.empty()) {
        addModuleNotice();
    }
    takePlace();
}

void MainWindow::takePlace() {
    if (!parts_.look.place) {
        // A dense or small screen has less room than the first size wants; the window's frame needs some too.
        resize(c_startSize.boundedTo(screen()->availableSize() * 0.9));
        return;
    }
    melvark::MoveWithinReach(*this, *parts_.look.place);
    if (parts_.look.place->Maximized.value_or(false)) {
        setWindowState(Qt::WindowMaximized);
    }
}

WindowLook MainWindow::look() const {
    WindowLook look{.place = place_.Current(), .screen = std::string(currentScreen().definition().code), .screens = {}};
    for (const DocumentScreen* screen : screens_) {
        look.screens[std::string(screen->definition().code)] = screen->look();
    }
    return look;
}

void MainWindow::start() {
    currentScreen().refresh();
    currentScreen().setFocus();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    QMainWindow::closeEvent(event);
    Q_EMIT closed();
}

void MainWindow::buildScreens() {
    for (const ScreenDefinition& definition : screenDefinitions()) {
        auto* screen = new DocumentScreen(definition, parts_.connection, parts_.settings, parts_.languages, tabs_);
        tabs_->addTab(screen, parts_.languages.label(definition.title));
        screens_.push_back(screen);
        const std::string code(definition.code);
        if (const auto left = parts_.look.screens.find(code); left != parts_.look.screens.end()) {
            screen->setLook(left->second);
        }
        if (parts_.look.screen == code) {
            tabs_->setCurrentWidget(screen);
        }
    }
    melvark::ConnectGuarded(tabs_, &QTabWidget::currentChanged, this, [this] { enterScreen(); });
}

void MainWindow::buildActions() {
    const Languages& languages = parts_.languages;
    QAction* insert = createAction(this, u"insertLinesAction", languages.label(texts::insertLines), Qt::Key_F8);
    insert->setToolTip(languages.label(texts::insertLinesHint));
    insert->setEnabled(static_cast<bool>(parts_.insertLines));
    melvark::ConnectGuarded(insert, &QAction::triggered, this, [this] { insertLines(); });
    QAction* refresh = createAction(this, u"refreshAction", languages.label(texts::refresh), Qt::Key_F5);
    melvark::ConnectGuarded(refresh, &QAction::triggered, this, [this] { currentScreen().refresh(); });
    QAction* search = createAction(this, u"searchAction", languages.label(texts::search), QKeySequence::Find);
    melvark::ConnectGuarded(search, &QAction::triggered, this, [this] { currentScreen().startSearch(); });
    QAction* report = createAction(this, u"reportAction", languages.label(texts::report),
                                   QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_H));
    report->setEnabled(static_cast<bool>(parts_.writeReport));
    melvark::ConnectGuarded(report, &QAction::triggered, this, [this] { parts_.writeReport(); });
    QAction* quit = createAction(this, u"quitAction", languages.label(texts::quit), QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(quit, &QAction::triggered, this, &QWidget::close);

    QMenu* file = menuBar()->addMenu(languages.label(texts::fileMenu));
    file->addActions({refresh, report, quit});
    file->insertSeparator(quit);
    menuBar()->addMenu(languages.label(texts::documentMenu))->addActions({insert, search});

    QMenu* view = menuBar()->addMenu(languages.label(texts::viewMenu));
    for (int index = 0; index < tabs_->count(); ++index) {
        QAction* action =
            createAction(this, u"screenAction", QStringLiteral("&%1 %2").arg(index + 1).arg(tabs_->tabText(index)),
                         QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + index)));
        action->setObjectName(QStringLiteral("screenAction%1").arg(index + 1));
        melvark::ConnectGuarded(action, &QAction::triggered, this, [this, index] { showScreen(index); });
        view->addAction(action);
    }

    QToolBar* tools = addToolBar(languages.label(texts::documentMenu).remove(u'&'));
    tools->setObjectName(u"tools");
    tools->setMovable(false);
    tools->setContextMenuPolicy(Qt::PreventContextMenu);
    tools->addActions({insert, refresh});
}

void MainWindow::buildStatusBar() {
    const auto addLabel = [this](const char16_t* name, const HostText& text, const std::string& value) {
        auto* label = new QLabel(parts_.languages.label(text).arg(QString::fromStdString(value)), this);
        label->setObjectName(QString::fromUtf16(name));
        label->setTextFormat(Qt::PlainText);
        label->setContentsMargins(8, 2, 8, 2);
        statusBar()->addWidget(label);
    };
    addLabel(u"userLabel", texts::userStatus, parts_.user);
    addLabel(u"databaseLabel", texts::databaseStatus, parts_.database);
    // Many numbers must not widen the window: what has no room stands in the hint.
    newDocuments_ = new ElidedLabel(this);
    newDocuments_->setObjectName(u"newDocumentsLabel");
    newDocuments_->setTextFormat(Qt::PlainText);
    newDocuments_->setContentsMargins(8, 2, 8, 2);
    newDocuments_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    statusBar()->addWidget(newDocuments_, 1);
}

void MainWindow::addModuleNotice() {
    const QString reason = QString::fromStdString(parts_.moduleMissing);
    auto* notice = new QLabel(parts_.languages.label(texts::pluginMissing).arg(reason), centralWidget());
    notice->setObjectName(u"moduleNotice");
    notice->setTextFormat(Qt::PlainText);
    notice->setTextInteractionFlags(Qt::TextSelectableByMouse);
    notice->setWordWrap(true);
    notice->setContentsMargins(12, 8, 12, 8);
    notice->setAutoFillBackground(true);
    notice->setBackgroundRole(QPalette::ToolTipBase);
    notice->setForegroundRole(QPalette::ToolTipText);
    static_cast<QVBoxLayout*>(centralWidget()->layout())->insertWidget(0, notice);
}

DocumentScreen& MainWindow::currentScreen() const {
    return *screens_.at(static_cast<std::size_t>(tabs_->currentIndex()));
}

void MainWindow::showScreen(int index) {
    tabs_->setCurrentIndex(index);
    currentScreen().setFocus();
}

/// A screen is read whenever it comes forward: meanwhile another one, or another clerk, may have changed its documents.
void MainWindow::enterScreen() {
    currentScreen().refresh();
    currentScreen().setFocus();
}

void MainWindow::insertLines() {
    if (inserting_) {
        return;
    }
    const QScopedValueRollback inserting(inserting_, true);
    DocumentScreen& screen = currentScreen();
    DocumentDataSet dataSet = screen.dataSet();
    tellNew({});
    const auto madeBefore = screen.created();
    if (parts_.insertLines(std::string(screen.definition().code), dataSet)) {
        tellNew(screen.refreshForCreated(madeBefore));
    }
}

/// Names the documents that inserted lines have made beside the current one; none empties the place.
void MainWindow::tellNew(const QStringList& numbers) {
    const QString names = numbers.join(QStringLiteral(", "));
    newDocuments_->setText(numbers.isEmpty() ? QString() : parts_.languages.label(texts::newDocuments).arg(names));
    newDocuments_->setToolTip(melvark::PlainHint(newDocuments_->text().toStdString()));
}

} // namespace refhost
