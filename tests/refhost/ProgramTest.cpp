#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct Outcome {
    int status = -1;
    std::string output;
    std::string errors;
};

/// The program with a data directory of its own for all tests: the first one that needs the sample company makes it.
class ProgramTest : public testing::Test {
protected:
    static void SetUpTestSuite() { folder_ = std::make_unique<QTemporaryDir>(); }
    static void TearDownTestSuite() { folder_.reset(); }

    static Outcome run(const QStringList& words, const QByteArray& input = {}) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"XDG_DATA_HOME"_qs, folder_->path());
        process.setProcessEnvironment(environment);
        process.start(QString::fromUtf8(HOST_PROGRAM), words);
        process.write(input);
        process.closeWriteChannel();
        constexpr int c_longestRun = 60 * 1000;
        EXPECT_TRUE(process.waitForFinished(c_longestRun));
        return {process.exitCode(), process.readAllStandardOutput().toStdString(),
                process.readAllStandardError().toStdString()};
    }

    static QJsonObject firstLine(const Outcome& outcome) {
        return QJsonDocument::fromJson(QByteArray::fromStdString(outcome.output).split('\n').front()).object();
    }

    static QString file(const QString& name) { return folder_->filePath(name); }

    static inline std::unique_ptr<QTemporaryDir> folder_;
};

TEST_F(ProgramTest, AWrongCommandLineIsToldWithTheUsageOnTheErrorStream) {
    const Outcome outcome = run({u"--colour"_qs});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors, StartsWith("melvark-host: unknown word: --colour\n\nusage: melvark-host"));
}

TEST_F(ProgramTest, HelpIsPrinted) {
    const Outcome outcome = run({u"--help"_qs});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, StartsWith("usage: melvark-host"));
}

TEST_F(ProgramTest, TheFirstUseMakesTheSampleCompanyInTheDataDirectory) {
    const Outcome outcome = run({u"--documents"_qs, u"DODAK"_qs});

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_TRUE(firstLine(outcome).value(u"id").isDouble());
    EXPECT_TRUE(QFile::exists(file(u"melvark/company.sqlite"_qs)));
    EXPECT_FALSE(QFile::exists(file(u"melvark/company.sqlite.part"_qs)));
}

TEST_F(ProgramTest, ADocumentsLinesAreAsManyAsItsListSays) {
    const Outcome documents = run({u"--documents"_qs, u"DODOBJ"_qs});
    const QJsonObject order = firstLine(documents);
    const Outcome lines =
        run({u"--show"_qs, u"DODOBJ"_qs, u"--document"_qs, QString::number(order.value(u"id").toInt())});

    EXPECT_EQ(lines.status, 0) << lines.errors;
    EXPECT_GT(order.value(u"lines").toInt(), 0);
    EXPECT_EQ(std::count(lines.output.begin(), lines.output.end(), '\n'), order.value(u"lines").toInt());
    EXPECT_TRUE(firstLine(lines).contains(u"MNOZSTVI"));
    EXPECT_FALSE(firstLine(lines).contains(u"_ID"));
}

TEST_F(ProgramTest, AQueryMustNotWrite) {
    EXPECT_EQ(run({u"--query"_qs, u"delete from DODAKPOL"_qs}).status, 2);
    const Outcome left = run({u"--query"_qs, u"select count(*) > 0 as LEFT_OVER from DODAKPOL"_qs});
    EXPECT_EQ(left.output, "{\"LEFT_OVER\":\"1\"}\n");
}

TEST_F(ProgramTest, ARefusalGoesToTheErrorStreamInOneSentenceFirst) {
    const Outcome outcome = run({u"--call"_qs, u"MELVARKEDITORDodakCheckMaster"_qs, u"a_DODKID=999999"_qs});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors, HasSubstr("999999"));
}

TEST_F(ProgramTest, ABatchRunsOnOneConnectionAndAnswersEveryCall) {
    const Outcome outcome = run({u"--user"_qs, u"novakova"_qs, u"--call"_qs, u"--batch"_qs},
                                "{\"call\":\"MELVARKEDITORDodObjInit\"}\n{\"call\":\"NENI\"}\n");

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_THAT(outcome.output, HasSubstr("\"UZIVATEL\":\"novakova\""));
    EXPECT_THAT(outcome.output, HasSubstr("{\"done\":1}\n{\"error\":"));
    EXPECT_THAT(outcome.output, testing::EndsWith("{\"done\":2}\n"));
}

TEST_F(ProgramTest, ACompanyOfExtraLinesIsMadeOnceAndNotOverAnother) {
    const QString database = u"sqlite:"_qs + file(u"extra.sqlite"_qs);
    const QStringList create{u"--database"_qs, database, u"--create-database"_qs, u"--lines"_qs, u"30"_qs};

    EXPECT_EQ(run(create).status, 0);
    const Outcome templates = run({u"--database"_qs, database, u"--documents"_qs, u"DODOBJVZOR"_qs});
    EXPECT_THAT(templates.output, HasSubstr("\"lines\":30}"));
    EXPECT_EQ(run(create).status, 2);
}

TEST_F(ProgramTest, AMissingDatabaseIsAnErrorAndIsNotCreated) {
    const Outcome outcome =
        run({u"--database"_qs, u"sqlite:"_qs + file(u"nowhere.sqlite"_qs), u"--query"_qs, u"select 1"_qs});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, HasSubstr("nowhere.sqlite"));
    EXPECT_FALSE(QFile::exists(file(u"nowhere.sqlite"_qs)));
}

TEST_F(ProgramTest, ATraceFileThatCannotBeOpenedStopsTheProgramBeforeItWorks) {
    const Outcome outcome = run({u"--trace"_qs, file(u"no-folder/trace.jsonl"_qs), u"--documents"_qs, u"DODAK"_qs});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors, HasSubstr("no-folder/trace.jsonl"));
}

} // namespace
