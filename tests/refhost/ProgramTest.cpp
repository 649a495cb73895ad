#include "refhost/database/SchemaVersion.h"
#include "tests/refhost/VersionOneFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <array>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace {

using refhost::c_SchemaVersion;
using refhost::makeVersionOne;
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
        return runIn(folder_->path(), words, input);
    }

    /// With another data directory.
    static Outcome runIn(const QString& folder, const QStringList& words, const QByteArray& input = {}) {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), folder);
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
    const Outcome outcome = run({QStringLiteral("--colour")});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors, StartsWith("melvark-host: unknown word: --colour\n\n"));
    EXPECT_THAT(outcome.errors, HasSubstr("Usage: melvark-host [OPTIONS]"));
}

TEST_F(ProgramTest, HelpIsPrinted) {
    const Outcome outcome = run({QStringLiteral("--help")});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, HasSubstr("Usage: melvark-host [OPTIONS]"));
    EXPECT_EQ(outcome.errors, "");
}

TEST_F(ProgramTest, TheVersionsOfProgramContractAndDatabasesArePrintedWithoutOpeningOne) {
    const Outcome outcome = runIn(file(QStringLiteral("untouched")), {QStringLiteral("--version")});

    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.output, testing::MatchesRegex("melvark-host [0-9]+\\.[0-9]+\\.[0-9]+[^\n]*\n"
                                                      "contract [0-9]+\ndatabase [0-9]+\n"));
    EXPECT_EQ(outcome.errors, "");
    EXPECT_FALSE(QFileInfo::exists(file(QStringLiteral("untouched"))));
}

TEST_F(ProgramTest, TheFirstUseMakesTheSampleCompanyInTheDataDirectory) {
    const Outcome outcome = run({QStringLiteral("--documents"), QStringLiteral("DODAK")});

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_TRUE(firstLine(outcome).value(u"id").isDouble());
    EXPECT_TRUE(QFile::exists(file(QStringLiteral("melvark/company.sqlite"))));
    const auto ownersAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(QFile::permissions(file(QStringLiteral("melvark/company.sqlite"))), ownersAlone);
    EXPECT_EQ(QFile::permissions(file(QStringLiteral("melvark"))), ownersAlone | QFile::ExeOwner | QFile::ExeUser);
}

TEST_F(ProgramTest, ADocumentsLinesAreAsManyAsItsListSays) {
    const Outcome documents = run({QStringLiteral("--documents"), QStringLiteral("DODOBJ")});
    const QJsonObject order = firstLine(documents);
    const Outcome lines = run({QStringLiteral("--show"), QStringLiteral("DODOBJ"), QStringLiteral("--document"),
                               QString::number(order.value(u"id").toInt())});

    EXPECT_EQ(lines.status, 0) << lines.errors;
    EXPECT_GT(order.value(u"lines").toInt(), 0);
    EXPECT_EQ(std::count(lines.output.begin(), lines.output.end(), '\n'), order.value(u"lines").toInt());
    EXPECT_TRUE(firstLine(lines).contains(u"MNOZSTVI"));
    EXPECT_FALSE(firstLine(lines).contains(u"_ID"));
}

TEST_F(ProgramTest, AQueryMustNotWrite) {
    EXPECT_EQ(run({QStringLiteral("--query"), QStringLiteral("delete from DODAKPOL")}).status, 2);
    const Outcome left =
        run({QStringLiteral("--query"), QStringLiteral("select count(*) > 0 as LEFT_OVER from DODAKPOL")});
    EXPECT_EQ(left.output, "{\"LEFT_OVER\":\"1\"}\n");
}

TEST_F(ProgramTest, ARefusalGoesToTheErrorStreamInOneSentenceFirst) {
    const Outcome outcome = run(
        {QStringLiteral("--call"), QStringLiteral("MELVARKEDITORDodakCheckMaster"), QStringLiteral("a_DODKID=999999")});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors, HasSubstr("999999"));
}

TEST_F(ProgramTest, ABatchRunsOnOneConnectionAndAnswersEveryCall) {
    const Outcome outcome =
        run({QStringLiteral("--user"), QStringLiteral("novakova"), QStringLiteral("--call"), QStringLiteral("--batch")},
            "{\"call\":\"MELVARKEDITORDodObjInit\"}\n{\"call\":\"NENI\"}\n");

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_THAT(outcome.output, HasSubstr("\"UZIVATEL\":\"novakova\""));
    EXPECT_THAT(outcome.output, HasSubstr("{\"done\":1}\n{\"error\":"));
    EXPECT_THAT(outcome.output, testing::EndsWith("{\"done\":2}\n"));
}

TEST_F(ProgramTest, ACompanyOfExtraLinesIsMadeOnceAndNotOverAnother) {
    const QString database = QStringLiteral("sqlite:") + file(QStringLiteral("extra.sqlite"));
    const QStringList create{QStringLiteral("--database"), database, QStringLiteral("--create-database"),
                             QStringLiteral("--lines"), QStringLiteral("30")};

    EXPECT_EQ(run(create).status, 0);
    const Outcome templates =
        run({QStringLiteral("--database"), database, QStringLiteral("--documents"), QStringLiteral("DODOBJVZOR")});
    EXPECT_THAT(templates.output, HasSubstr("\"lines\":30}"));
    EXPECT_EQ(run(create).status, 2);
}

TEST_F(ProgramTest, ACompanyCanBeMadeWithoutTheSample) {
    const QString database = QStringLiteral("sqlite:") + file(QStringLiteral("empty.sqlite"));
    EXPECT_EQ(
        run({QStringLiteral("--database"), database, QStringLiteral("--create-database"), QStringLiteral("--empty")})
            .status,
        0);
    const Outcome rows =
        run({QStringLiteral("--database"), database, QStringLiteral("--query"),
             QStringLiteral("select (select count(*) from DODAK) + (select count(*) from SKLADPOL) as ALL_ROWS")});
    EXPECT_EQ(rows.output, "{\"ALL_ROWS\":\"0\"}\n") << rows.errors;
}

TEST_F(ProgramTest, ACompanyThatIsKilledWhileItIsMadeDoesNotOpenAsOne) {
    const QString path = file(QStringLiteral("killed.sqlite"));
    const QStringList database{QStringLiteral("--database"), QStringLiteral("sqlite:") + path};
    QProcess process;
    process.start(QString::fromUtf8(HOST_PROGRAM),
                  database + QStringList{QStringLiteral("--create-database"), QStringLiteral("--lines"),
                                         QStringLiteral("20000")});
    constexpr qint64 c_HalfWay = 1 << 20; // far behind the tables, in the middle of the sample
    while (!process.waitForFinished(5) && QFileInfo(path).size() < c_HalfWay) {
    }
    ASSERT_EQ(process.state(), QProcess::Running) << "it was too fast to be killed";
    process.kill();
    ASSERT_TRUE(process.waitForFinished());

    const Outcome opened = run(database + QStringList{QStringLiteral("--documents"), QStringLiteral("DODAK")});
    EXPECT_EQ(opened.status, 2);
    EXPECT_THAT(opened.errors, HasSubstr("nemá tabulky. Nejprve ji vytvořte."));
    EXPECT_EQ(run(database + QStringList{QStringLiteral("--create-database"), QStringLiteral("--empty")}).status, 0);
}

TEST_F(ProgramTest, TwoFirstStartsAtOnceMakeOneCompany) {
    const QTemporaryDir data;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), data.path());
    std::array<QProcess, 2> starts;
    for (QProcess& start : starts) {
        start.setProcessEnvironment(environment);
        start.start(QString::fromUtf8(HOST_PROGRAM),
                    {QStringLiteral("--query"), QStringLiteral("select count(*) as N from SKLAD")});
    }
    for (QProcess& start : starts) {
        constexpr int c_longestRun = 60 * 1000;
        EXPECT_TRUE(start.waitForFinished(c_longestRun));
        EXPECT_EQ(start.exitCode(), 0) << start.readAllStandardError().toStdString();
        EXPECT_EQ(start.readAllStandardOutput().toStdString(), "{\"N\":\"3\"}\n");
    }
}

TEST_F(ProgramTest, AnOlderOwnDatabaseIsUpgradedAtAnOrdinaryStartAndTheCopyIsNamed) {
    const QTemporaryDir data;
    QDir(data.path()).mkdir(QStringLiteral("melvark"));
    const std::string own = data.filePath(QStringLiteral("melvark/company.sqlite")).toStdString();
    makeVersionOne(own);

    const Outcome outcome = runIn(data.path(), {QStringLiteral("--query"), QStringLiteral("select CISLO from DODAK "
                                                                                          "where ID = 1087")});

    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    EXPECT_THAT(outcome.output, StartsWith("{\"CISLO\":"));
    EXPECT_THAT(outcome.errors, HasSubstr("zůstalo v souboru „" + own + ".version-1“."));
    EXPECT_EQ(runIn(data.path(), {QStringLiteral("--query"), QStringLiteral("select 1 as A")}).errors, "");
}

TEST_F(ProgramTest, AnyOtherOlderDatabaseIsUpgradedByTheCommandOnly) {
    const std::string path = file(QStringLiteral("old.sqlite")).toStdString();
    makeVersionOne(path);
    const QStringList database{QStringLiteral("--database"), QStringLiteral("sqlite:") + QString::fromStdString(path)};

    const Outcome refused = run(database + QStringList{QStringLiteral("--documents"), QStringLiteral("DODAK")});
    EXPECT_EQ(refused.status, 2);
    EXPECT_THAT(refused.errors, HasSubstr("--upgrade-database"));

    const Outcome outcome = run(database + QStringList{QStringLiteral("--upgrade-database")});
    EXPECT_EQ(outcome.status, 0) << outcome.errors;
    const std::string present = std::to_string(c_SchemaVersion);
    EXPECT_EQ(outcome.output, "{\"from\":1,\"to\":" + present + ",\"copy\":\"" + path + ".version-1\",\"kept\":[]}\n");
    EXPECT_EQ(run(database + QStringList{QStringLiteral("--documents"), QStringLiteral("DODAK")}).status, 0);
    EXPECT_EQ(run(database + QStringList{QStringLiteral("--upgrade-database")}).output,
              "{\"from\":" + present + ",\"to\":" + present + ",\"copy\":null,\"kept\":[]}\n");
}

TEST_F(ProgramTest, AFolderOfProceduresReplacesThoseOfItsNames) {
    QDir(folder_->path()).mkdir(QStringLiteral("own"));
    QFile script(file(QStringLiteral("own/MELVARKEDITORDodObjInit.sql")));
    ASSERT_TRUE(script.open(QFile::WriteOnly));
    script.write("-- returns: UZIVATEL\nselect 'vlastní' as UZIVATEL;\n");
    script.close();

    const Outcome outcome = run({QStringLiteral("--procedures"), file(QStringLiteral("own")), QStringLiteral("--call"),
                                 QStringLiteral("MELVARKEDITORDodObjInit")});

    EXPECT_EQ(outcome.output, "{\"set\":1,\"row\":{\"UZIVATEL\":\"vlastní\"}}\n") << outcome.errors;
}

TEST_F(ProgramTest, AMissingDatabaseIsAnErrorAndIsNotCreated) {
    const Outcome outcome =
        run({QStringLiteral("--database"), QStringLiteral("sqlite:") + file(QStringLiteral("nowhere.sqlite")),
             QStringLiteral("--query"), QStringLiteral("select 1")});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_THAT(outcome.errors, HasSubstr("nowhere.sqlite"));
    EXPECT_FALSE(QFile::exists(file(QStringLiteral("nowhere.sqlite"))));
}

TEST_F(ProgramTest, ATraceFileThatCannotBeOpenedStopsTheProgramBeforeItWorks) {
    const Outcome outcome = run({QStringLiteral("--trace"), file(QStringLiteral("no-folder/trace.jsonl")),
                                 QStringLiteral("--documents"), QStringLiteral("DODAK")});

    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.output, "");
    EXPECT_THAT(outcome.errors, HasSubstr("no-folder/trace.jsonl"));
}

TEST_F(ProgramTest, ACommandWithoutWindowsLogsItsCallsAndWhatEndedIt) {
    const QString path = file(QStringLiteral("host.log"));
    const Outcome outcome = run({QStringLiteral("--log"), path, QStringLiteral("--call"),
                                 QStringLiteral("MELVARKEDITORDodakCheckMaster"), QStringLiteral("a_DODKID=999999")});

    EXPECT_EQ(outcome.status, 2);
    QFile log(path);
    ASSERT_TRUE(log.open(QFile::ReadOnly)) << outcome.errors;
    const QList<QByteArray> lines = log.readAll().split('\n');
    ASSERT_EQ(lines.size(), 4) << "started, called, failed, and the last line's end";
    EXPECT_THAT(lines[0].toStdString(), HasSubstr("\"started\":"));
    const QJsonObject call = QJsonDocument::fromJson(lines[1]).object();
    EXPECT_EQ(call.value(u"call").toString(), QStringLiteral("MELVARKEDITORDodakCheckMaster"));
    EXPECT_TRUE(call.value(u"ms").isDouble());
    EXPECT_THAT(call.value(u"error").toString().toStdString(), StartsWith("ML"));
    EXPECT_EQ(QJsonDocument::fromJson(lines[2]).object().value(u"failed"), call.value(u"error"));
    EXPECT_FALSE(lines.join().contains("999999"));
}

TEST_F(ProgramTest, ALogThatCannotBeWrittenChangesNothingOfWhatACommandPrints) {
    const QStringList command{QStringLiteral("--query"), QStringLiteral("select 1 as A")};
    const Outcome outcome = run(QStringList{QStringLiteral("--log"), folder_->path()} + command); // a folder is no log
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.output, run(command).output);
    EXPECT_THAT(outcome.errors, HasSubstr("Work goes on without it."));
}

} // namespace
