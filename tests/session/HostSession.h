#pragma once

#include <QPoint>
#include <QProcess>
#include <QProcessEnvironment>
#include <QRect>
#include <QStringList>
#include <QTemporaryDir>

#include <functional>
#include <string>
#include <vector>

/// A whole session as a clerk has it: the real host with the real module on a database of its own, driven through the
/// display's keys, watched through the trace and the command line. Needs a display with a window manager.
///
/// Every wait has a limit; running into it fails the test at once.
class HostSession {
public:
    /// On a company that the test has made, as `user`: the address as the host's command line takes it.
    explicit HostSession(std::string database, QString user = QStringLiteral("novakova"));
    HostSession(const HostSession&) = delete;
    HostSession& operator=(const HostSession&) = delete;
    /// Ends a host that is still running.
    ~HostSession();

    /// Before the host starts: it and the keys and the pointer that drive it go to this display.
    void useDisplay(const QString& name);
    /// Starts the host with further arguments, the trace on.
    void start(const QStringList& arguments);
    void startEditor(const QString& params, int document, const QStringList& arguments = {});
    /// Waits until the host has ended; its exit status.
    int finish();
    /// Ends the host without asking, as a power failure would.
    void kill();
    bool isRunning() const;

    /// Waits for a visible window of this host with that title and gives it the focus.
    void waitForWindow(const QString& title);
    /// Types the text, letter by letter.
    void type(const QString& text);
    /// Presses keys, named as X names them: "Return", "ctrl+Return", "shift+Return", "Escape".
    void press(const QStringList& keys);
    /// Presses the key that opens a menu and waits until the host has one more window.
    void openMenu(const QString& key);
    /// The mouse, at places of the active window's contents.
    void click(QPoint place, int button = 1);
    void doubleClick(QPoint place);
    void drag(QPoint from, QPoint to);
    /// Clicks where a menu opens, waits for it, presses keys in it and waits until it is gone.
    void pickFromMenu(QPoint place, int button, const QStringList& keys);
    /// Opens the menu there and leaves it open.
    void openMenuAt(QPoint place, int button);
    /// Moves and resizes the active window as the window manager does for its user.
    void placeWindow(const QRect& place);
    /// Waits until the active window's contents are so wide.
    void waitForWindowWidth(int width);
    /// Waits for the host's lookup list and picks its first row.
    void pickFirstRow();
    /// Waits until the trace has so many lines that contain the text.
    void waitForTrace(const std::string& text, int count = 1);

    /// The trace so far, one line a call, without the time that each took.
    std::vector<std::string> trace() const;
    /// What a command of the host prints, one line each, without the module.
    std::vector<std::string> ask(const QStringList& arguments) const;
    std::string standardError() const { return standardError_; }

    /// Where the session's user has his files.
    std::string home() const { return folder_.path().toStdString(); }
    /// A file of the session's own configuration directory; empty when it is not there.
    std::string configuration(const std::string& file) const;
    /// Before the host starts: puts such a file there.
    void configure(const std::string& file, const std::string& content) const;

    /// Runs one statement on the session's database from outside, as another clerk's work would.
    void changeDatabase(const std::string& sql) const;

private:
    QStringList withDatabase(const QStringList& arguments) const;
    /// The test's, as it is at this moment, with what is the session's own.
    QProcessEnvironment environment() const;
    void runTool(const QStringList& arguments) const;
    /// Runs the input tool on the active window, whose place is its first argument.
    void runToolAt(QPoint place, const QStringList& arguments) const;
    QStringList visibleWindows() const;
    /// Does what opens a menu and waits until there is one more window.
    void awaitMenu(const std::function<void()>& open, const QString& what);

    QTemporaryDir folder_;
    std::string database_;
    QString user_;
    QProcessEnvironment own_; ///< What the session sets beside the test's environment.
    QStringList menu_;        ///< The windows of the menu that was opened last.
    QProcess host_;
    std::string standardError_;
};
