#include "editors/MelvarkEditorDodakEditWin.h"
#include "host/widgets/StringGrid.h"
#include "refhost/Languages.h"
#include "refhost/WorkProgress.h"
#include "refhost/database/ThreadedConnection.h"
#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"
#include "tests/database/SlowCalls.h"
#include "tests/refhost/FocusedWidget.h"
#include "tests/support/RecordingHost.h"
#include "tests/support/TemporaryFolder.h"

#include <QTest>
#include <QTimer>

#include <filesystem>

// The real form on a real company whose recalculation takes longer than a second.

namespace refhost {
namespace {

class ThreadedHost final : public RecordingHost {
public:
    explicit ThreadedHost(TConnection& threaded) : threaded_(threaded) {}
    TConnection& Connection() override { return threaded_; }

private:
    TConnection& threaded_;
};

class LongWorkForm : public testing::TestWithParam<Engine> {
protected:
    LongWorkForm() {
        addContractCompany(*openAs(url_, "novakova"));
        slow_.emplace(url_, std::initializer_list<std::string_view>{"MELVARKEDITORDodakVypocetCen"}, folder_.path());
        database_ = openAs(url_, "novakova");
        slow_->install(*database_);
        connection_.emplace(*database_, *database_, progress_);
        host_.emplace(*connection_);
        scope_.emplace(*host_);
        editor_ = std::make_unique<TDodakEditBox>(qApp, &manager_, "SABLONA", c_OpenNote, c_Mill);
        editor_->show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(editor_.get()));
    }

    /// To the quantity of the second line: the third editable cell behind the first one.
    void goToQuantity() const {
        QTest::keyClick(focusedWidget(), Qt::Key_Down);
        for (int i = 0; i < 3; ++i) {
            QTest::keyClick(focusedWidget(), Qt::Key_Return);
        }
    }
    bool isUnsavedWorkKept() const { return std::filesystem::exists(editor_->TempFileName()); }

    const TemporaryFolder folder_{"long-work-form"};
    const std::string url_ = newDatabaseUrl(GetParam());
    std::optional<SlowCalls> slow_;
    std::unique_ptr<Database> database_;
    Languages languages_{"cs"};
    WorkProgress progress_{languages_};
    std::optional<ThreadedConnection> connection_;
    std::optional<ThreadedHost> host_;
    std::optional<TScopedHost> scope_;
    RecordingLibraryManager manager_;
    std::unique_ptr<TDodakEditBox> editor_;
};

INSTANTIATE_TEST_SUITE_P(Engines, LongWorkForm, testing::ValuesIn(c_BothEngines), engineOf);

TEST_P(LongWorkForm, UnsavedWorkIsNotWrittenMeanwhileButAsSoonAsTheWorkIsOver) {
    goToQuantity();
    ASSERT_EQ(editor_->findChild<TStringGrid*>()->Row(), 2);
    QTest::keyClicks(focusedWidget(), QStringLiteral("2,5"));
    slow_->take(8'000'000); // two seconds and more on either engine
    std::filesystem::remove(editor_->TempFileName());
    auto& clock = *editor_->findChild<QTimer*>(QStringLiteral("AutosaveTimer"));
    ASSERT_TRUE(clock.isActive());
    clock.setInterval(1200); // due when the window is up

    const auto before = std::chrono::steady_clock::now();
    QTest::keyClick(focusedWidget(), Qt::Key_Return);

    ASSERT_GT(std::chrono::steady_clock::now() - before, std::chrono::milliseconds(1300)) << "it did not take long";
    EXPECT_FALSE(isUnsavedWorkKept());
    EXPECT_TRUE(QTest::qWaitFor([this] { return isUnsavedWorkKept(); }, 500)) << "what was due was not made up for";
    EXPECT_TRUE(host_->errors().empty());
}

} // namespace
} // namespace refhost
