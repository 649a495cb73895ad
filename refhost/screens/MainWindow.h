#pragma once

#include "host/Connection.h"
#include "host/FormatSettings.h"
#include "host/widgets/WindowPlace.h"
#include "refhost/screens/WindowLook.h"

#include <QMainWindow>

#include <functional>
#include <string>
#include <vector>

class QAction;
class QLabel;
class QTabWidget;
class TDataSet;

namespace refhost {

class DocumentScreen;
class Languages;

/// What the main window needs to know of the running host.
struct MainWindowParts {
    TConnection& connection;
    const TFormatSettings& settings;
    const Languages& languages;
    std::string user;
    std::string database; ///< As people call it: the file or the server's name.
    /// Invokes the library item of the module with these parameters on the document; true when it changed something.
    /// Empty when there is no module.
    std::function<bool(const std::string& params, TDataSet& dataSet)> insertLines;
    /// Why there is no module: one sentence; empty when there is one.
    std::string moduleMissing;
    /// How the window was left the last time.
    WindowLook look = {};
    /// Writes a report on a problem and tells the user where it lies. Empty when nobody does.
    std::function<void()> writeReport = nullptr;
};

/// The host's window: three document screens as tabs, a menu, a tool bar and a status bar. Everything has a key.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(MainWindowParts parts);

    /// Reads the first screen and puts the cursor into its documents. Throws EDatabaseError.
    void start();

    /// How the window is left.
    WindowLook look() const;

Q_SIGNALS:
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void takePlace();
    void buildScreens();
    void buildActions();
    void buildStatusBar();
    void addModuleNotice();
    DocumentScreen& currentScreen() const;
    void showScreen(int index);
    void enterScreen();
    void insertLines();
    void tellNew(const QStringList& numbers);

    MainWindowParts parts_;
    melvark::WindowPlace place_;
    QTabWidget* tabs_ = nullptr;
    std::vector<DocumentScreen*> screens_;
    QLabel* newDocuments_ = nullptr;
    bool inserting_ = false;
};

} // namespace refhost
