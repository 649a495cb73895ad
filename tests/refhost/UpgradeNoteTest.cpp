#include "refhost/CompanyDatabase.h"
#include "refhost/Languages.h"
#include "refhost/Program.h"
#include "tests/refhost/VersionOneFile.h"

#include <QApplication>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace refhost {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

QWidget* mainWindow() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == u"mainWindow" && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/// An ordinary start with windows on the user's own database, in a data directory of the test.
class UpgradeNote : public testing::Test {
protected:
    void SetUp() override {
        before_ = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", folder_.path().toUtf8());
        std::filesystem::create_directories(std::filesystem::path(defaultDatabaseFile()).parent_path());
        makeVersionOne(defaultDatabaseFile());
    }
    void TearDown() override { qputenv("XDG_DATA_HOME", before_); }

    /// Starts and does what the user does: he reads every box and confirms it by Enter, and leaves the main window.
    /// The boxes' titles and texts.
    std::vector<std::string> boxesOfAStart() {
        std::vector<std::string> boxes;
        QTimer user;
        QObject::connect(&user, &QTimer::timeout, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (box != nullptr && box->isActiveWindow()) {
                EXPECT_EQ(mainWindow(), nullptr) << "the box comes before there is anything to do";
                boxes.push_back(box->windowTitle().toStdString() + ": " + box->text().toStdString());
                QTest::keyClick(box, Qt::Key_Return);
            } else if (QWidget* window = mainWindow(); window != nullptr && window->isActiveWindow()) {
                QTest::keyClick(window, Qt::Key_Q, Qt::ControlModifier);
            }
        });
        user.start(50);
        EXPECT_EQ(runCommand({}, Languages("cs")), 0);
        return boxes;
    }

private:
    QTemporaryDir folder_;
    QByteArray before_;
};

TEST_F(UpgradeNote, NamesTheCopyOnceBeforeTheMainWindowComes) {
    const std::string copy = defaultDatabaseFile() + ".version-1";

    EXPECT_THAT(boxesOfAStart(),
                ElementsAre("Upozornění: Databáze byla převedena pro novou verzi programu. Jak vypadala "
                            "předtím, zůstalo v souboru „" +
                            copy + "“."));
    EXPECT_TRUE(std::filesystem::exists(copy));
    EXPECT_THAT(boxesOfAStart(), IsEmpty());
}

} // namespace

} // namespace refhost
