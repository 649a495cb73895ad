#include "refhost/HostApplication.h"

#include "host/Exceptions.h"
#include "refhost/ErrorDisplay.h"
#include "refhost/Languages.h"
#include "refhost/Trace.h"
#include "refhost/database/StopSignal.h"
#include "tests/support/RecordingHost.h"

#include <QDateTime>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

namespace refhost {

namespace {

class KeptErrors : public ErrorDisplay {
public:
    void show(const ErrorReport& report) override {
        if (fails) {
            throw std::bad_alloc();
        }
        sentences.push_back(report.sentence);
    }

    std::vector<std::string> sentences;
    bool fails = false;
};

class HostApplicationTest : public testing::Test {
protected:
    explicit HostApplicationTest(const char* language = "cs") : languages_(language) {}

    RecordingConnection database_;
    Languages languages_;
    std::ostringstream* output_ = new std::ostringstream; // owned by the trace
    Trace trace_{std::unique_ptr<std::ostream>(output_)};
    KeptErrors errors_;
    TDateTime now_ = std::chrono::local_days(std::chrono::year(2027) / 2 / 1) + std::chrono::hours(13);
    HostApplication host_{{.connection = database_,
                           .databaseAddress = "sqlite:/data/company.sqlite",
                           .settings = TFormatSettings::Czech(),
                           .languages = languages_,
                           .trace = trace_,
                           .errors = errors_,
                           .clock = [this] { return now_; }}};
};

TEST_F(HostApplicationTest, ShowsAnErrorOnItsOneDisplayAndTracesWhatItShows) {
    host_.ShowError(std::make_exception_ptr(EDatabaseError("Doklad je uzavřený.", "ML003")));

    EXPECT_THAT(errors_.sentences, testing::ElementsAre("Doklad je uzavřený."));
    EXPECT_EQ(output_->str(), "{\"error\":\"Doklad je uzavřený.\"}\n");
}

TEST_F(HostApplicationTest, SaysNothingOfAWorkThatTheUserHasStopped) {
    host_.ShowError(std::make_exception_ptr(EStopped("PostgreSQL 57014")));

    EXPECT_THAT(errors_.sentences, testing::IsEmpty());
    EXPECT_EQ(output_->str(), "");
}

TEST_F(HostApplicationTest, AnErrorThatCannotBeShownEndsNothing) {
    errors_.fails = true;
    host_.ShowError(std::make_exception_ptr(EDatabaseError("Doklad je uzavřený.")));
    EXPECT_EQ(output_->str(), "{\"error\":\"Doklad je uzavřený.\"}\n");
}

TEST_F(HostApplicationTest, GivesTheModuleATracedConnection) {
    database_.answerQuery("select 1", {});
    host_.Connection().Query("select 1");
    EXPECT_THAT(output_->str(), testing::StartsWith("{\"call\":\"select 1\""));
}

TEST_F(HostApplicationTest, GivesFormatsClockAndImages) {
    EXPECT_EQ(host_.FormatSettings(), TFormatSettings::Czech());
    EXPECT_EQ(host_.Now(), now_);
    EXPECT_FALSE(host_.ImageData("RUKA", "ENGINE").empty());
    EXPECT_EQ(host_.Translation(R"(KORDAN30\MESSAGEBOX\YES)", "&Ano"), std::nullopt);
}

// The figures are those of sha256sum.
TEST_F(HostApplicationTest, HandsOverADigestOfTheDatabasesAddress) {
    EXPECT_EQ(host_.DatabaseDigest(), "7cd5e820193b0d0b547452b0890a4ffb");
}

TEST(SystemClock, TellsTheLocalTime) {
    const QDateTime before = QDateTime::currentDateTime();
    const auto now = std::chrono::floor<std::chrono::seconds>(systemNow());
    const QDateTime after = QDateTime::currentDateTime();

    const QDateTime told(QDate(1970, 1, 1), QTime(0, 0), Qt::UTC); // the wall clock's figures without a zone
    const QString text = told.addSecs(now.time_since_epoch().count()).toString(u"yyyy-MM-dd hh:mm:ss");
    EXPECT_GE(text, before.toString(u"yyyy-MM-dd hh:mm:ss"));
    EXPECT_LE(text, after.toString(u"yyyy-MM-dd hh:mm:ss"));
}

} // namespace

} // namespace refhost
