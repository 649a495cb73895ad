#include "refhost/IdentifiedSaves.h"

#include "host/Exceptions.h"
#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"
#include "tests/refhost/UnansweredDatabase.h"
#include "tests/support/TemporaryFolder.h"

#include <filesystem>
#include <memory>
#include <utility>

namespace refhost {
namespace {

using Loss = UnansweredDatabase::Loss;

constexpr const char* c_Close = "MELVARKEDITORDodakTempUloz";
constexpr const char* c_Unknown = "ML057 Databáze neodpověděla, zda je doklad uložený. Uložte jej znovu, nic se "
                                  "nezapíše dvakrát.";
constexpr const char* c_LookFirst = "ML057 Databáze neodpověděla, zda je doklad uložený. Podívejte se do něj, než jej "
                                    "uložíte znovu.";
constexpr const char* c_OtherLines = "ML058 Doklad se už uložil s jinými řádky, než má editor. Zavřete editor a "
                                     "doplňte do dokladu jen to, co v něm chybí.";

/// A clerk's program on a company of the test's own; it may be killed and started again.
class IdentifiedSavesTest : public testing::TestWithParam<Engine> {
protected:
    IdentifiedSavesTest() {
        addContractCompany(*openAs(url_, "novakova"));
        start();
    }

    void start(const std::string& user = "novakova") {
        database_ = openAs(url_, user);
        link_ = std::make_unique<UnansweredDatabase>(*database_);
        program_ = std::make_unique<IdentifiedSaves>(*link_, folder());
    }
    /// What lies on the disk stays as it is: the program cannot ask any more.
    void kill() {
        link_->lose(Loss::OfRequest, "MELVARKEDITORUlozeniOver");
        program_.reset();
        link_.reset();
        database_.reset();
    }

    std::string run(const std::string& procedure, Parameters parameters = {}) {
        try {
            return answerText(program_->Execute({"MELVARKEDITOR" + procedure, std::move(parameters), false}));
        } catch (const EDatabaseError& error) {
            return error.Code() + " " + error.Message();
        }
    }
    void open() { run("DodakInit"); }
    /// The module's calls of a save of one row.
    std::string save(const std::string& quantity, std::int64_t note = c_OpenNote) {
        run("ResetTemp");
        EXPECT_EQ(run("DodakInsertToTemp", {{"a_SKLADPOL", "Sirup"}, {"a_MNOZSTVI", quantity}}), "");
        return run("DodakTempUloz", {{"a_DODKID", id(note)}});
    }
    std::string saveLosing(Loss loss, const std::string& quantity) {
        link_->lose(loss, c_Close);
        return save(quantity);
    }
    /// One more host of the same clerk, which ends at the end of its save as this one does at its kill().
    void killAnotherOneSaving(const std::string& quantity) {
        auto database = std::exchange(database_, nullptr);
        auto link = std::exchange(link_, nullptr);
        auto program = std::exchange(program_, nullptr);
        start();
        EXPECT_EQ(saveLosing(Loss::OfAnswer, quantity), c_Unknown);
        kill();
        database_ = std::move(database);
        link_ = std::move(link);
        program_ = std::move(program);
    }
    std::string mayWorkBeTakenUp(std::int64_t note = c_OpenNote) {
        return run("DodakObnovData", {{"a_DODKID", id(note)}});
    }
    /// The quantities that the saves have added to the note, whose first line was there before.
    std::string added(std::int64_t note = c_OpenNote) const {
        return rows(*openAs(url_, "svoboda"),
                    "select MNOZSTVI from SCREEN_DODAK_LINES_V where PORADI > 1 and _DOCID = " + std::to_string(note) +
                        " order by PORADI");
    }
    /// In the order in which a program finds them.
    std::vector<std::string> fileNames() const {
        std::error_code none;
        std::vector<std::string> names;
        for (const auto& file : std::filesystem::directory_iterator(folder(), none)) {
            names.push_back(file.path().filename());
        }
        return names;
    }
    std::size_t files() const { return fileNames().size(); }
    std::string folder() const { return temporary_.path() / "saves"; }

    const TemporaryFolder temporary_{"identified-saves"};
    const std::string url_ = newDatabaseUrl(GetParam());
    std::unique_ptr<Database> database_;
    std::unique_ptr<UnansweredDatabase> link_;
    std::unique_ptr<IdentifiedSaves> program_;
};

TEST_P(IdentifiedSavesTest, AnAnsweredSaveLeavesNothingBehind) {
    EXPECT_EQ(save("2"), "");
    EXPECT_EQ(save("3"), "");
    EXPECT_EQ(added(), "2\n3");
    EXPECT_EQ(files(), 0U);
}

TEST_P(IdentifiedSavesTest, ASaveGetsItsIdentityBetweenItsRowsAndItsClosingCallAndNothingElse) {
    save("2");
    EXPECT_EQ(link_->takeCalls(), "ResetTemp DodakInsertToTemp UlozeniOznac DodakTempUloz");
}

TEST_P(IdentifiedSavesTest, ARefusedSaveLeavesNothingBehind) {
    EXPECT_EQ(save("2", c_NoteOfMill), "ML011 Dodací list „DL-1“ je uzavřený. Otevřete jej, nebo vyberte jiný.");
    EXPECT_EQ(files(), 0U);
    EXPECT_EQ(save("2"), "");
    EXPECT_EQ(added(), "2");
}

TEST_P(IdentifiedSavesTest, AfterALostAnswerTheSameRowsAreDoneAndStandThereOnce) {
    EXPECT_EQ(saveLosing(Loss::OfAnswer, "2"), c_Unknown);
    EXPECT_EQ(files(), 1U);
    EXPECT_EQ(save("2"), "");
    EXPECT_EQ(added(), "2");
    EXPECT_EQ(files(), 0U);
    EXPECT_EQ(mayWorkBeTakenUp(), "a_OBNOVDATA = 1") << "other work on it may be";
    EXPECT_EQ(save("2"), "") << "and the next save is one of its own";
    EXPECT_EQ(added(), "2\n2");
}

TEST_P(IdentifiedSavesTest, AfterALostAnswerOtherRowsAreRefusedUntilTheEditorIsOpenedAnew) {
    saveLosing(Loss::OfAnswer, "2");
    EXPECT_EQ(save("3"), c_OtherLines);
    EXPECT_EQ(save("3"), c_OtherLines);
    EXPECT_EQ(save("2"), "") << "the clerk has put the lines back";
    saveLosing(Loss::OfAnswer, "4");
    EXPECT_EQ(save("5"), c_OtherLines);
    open();
    EXPECT_EQ(save("5"), "");
    EXPECT_EQ(added(), "2\n4\n5");
    EXPECT_EQ(files(), 0U);
}

TEST_P(IdentifiedSavesTest, ALostRequestIsSavedAnewAndOnce) {
    EXPECT_EQ(saveLosing(Loss::OfRequest, "2"), c_Unknown);
    EXPECT_EQ(save("3"), "");
    EXPECT_EQ(added(), "3");
    EXPECT_EQ(files(), 0U);
}

TEST_P(IdentifiedSavesTest, AnotherSourceOfTheSameRowsIsNotTheSameSave) {
    saveLosing(Loss::OfAnswer, "2");
    run("ResetTemp");
    run("DodakInsertToTemp", {{"a_SKLADPOL", "Sirup"}, {"a_MNOZSTVI", "2"}});
    EXPECT_EQ(run("DodakTempUloz", {{"a_DODKID", id(c_OpenNote)}, {"a_DODKID_ZDROJ", id(c_SameDayNote)}}),
              c_OtherLines);
}

TEST_P(IdentifiedSavesTest, AnotherDocumentHasNothingToDoWithIt) {
    saveLosing(Loss::OfAnswer, "2");
    EXPECT_EQ(save("7", c_SameDayNote), "");
    EXPECT_EQ(save("2"), "");
    EXPECT_EQ(added(), "2");
}

TEST_P(IdentifiedSavesTest, AQuestionThatGetsNoAnswerLeavesTheOutcomeUnknown) {
    saveLosing(Loss::OfAnswer, "2");
    link_->lose(Loss::OfRequest, "MELVARKEDITORUlozeniOver");
    EXPECT_EQ(save("2"), c_Unknown);
    EXPECT_EQ(save("2"), "");
    EXPECT_EQ(added(), "2");
}

TEST_P(IdentifiedSavesTest, AnEditorThatIsClosedWithoutAnAnswerHasGivenItsSaveUp) {
    saveLosing(Loss::OfRequest, "2");
    link_->takeCalls();
    open();
    EXPECT_EQ(link_->takeCalls(), "DodakInit UlozeniOver UlozeniOznac");
    EXPECT_EQ(files(), 0U);
    EXPECT_EQ(save("3"), "");
    EXPECT_EQ(added(), "3");
}

TEST_P(IdentifiedSavesTest, WorkOnASaveThatCameBeforeACrashIsNotTakenUp) {
    saveLosing(Loss::OfAnswer, "2");
    kill();
    start();
    open();
    EXPECT_EQ(mayWorkBeTakenUp(c_SameDayNote), "a_OBNOVDATA = 1");
    EXPECT_EQ(mayWorkBeTakenUp(), "a_OBNOVDATA = 0");
    EXPECT_EQ(files(), 1U) << "until the module has dropped it";
    EXPECT_EQ(mayWorkBeTakenUp(), "a_OBNOVDATA = 1") << "other work on the same note";
    EXPECT_EQ(files(), 0U);
    EXPECT_EQ(save("3"), "");
    EXPECT_EQ(added(), "2\n3");
}

TEST_P(IdentifiedSavesTest, WorkOnASaveThatNeverCameIsTakenUpAndSavedOnce) {
    saveLosing(Loss::OfRequest, "2");
    kill();
    start();
    EXPECT_EQ(mayWorkBeTakenUp(), "a_OBNOVDATA = 1");
    EXPECT_EQ(files(), 0U);
    EXPECT_EQ(save("2"), "");
    EXPECT_EQ(added(), "2");
}

TEST_P(IdentifiedSavesTest, ASaveThatWasLeftBehindByACrashIsAskedForByTheNextSaveOfThatDocument) {
    saveLosing(Loss::OfAnswer, "2");
    kill();
    start();
    EXPECT_EQ(save("2"), "");
    EXPECT_EQ(added(), "2");
    saveLosing(Loss::OfAnswer, "3");
    kill();
    start();
    EXPECT_EQ(save("4"), c_OtherLines);
    open();
    EXPECT_EQ(save("4"), "");
    EXPECT_EQ(added(), "2\n3\n4");
}

TEST_P(IdentifiedSavesTest, OfTwoSavesThatWereLeftBehindEachIsDoneWhenItsRowsComeAgain) {
    saveLosing(Loss::OfAnswer, "2");
    const std::string fileOfTwo = fileNames().at(0);
    killAnotherOneSaving("3");
    kill();
    start();
    ASSERT_EQ(files(), 2U);
    // First the one that is found last.
    const auto [first, second] = fileNames().front() == fileOfTwo ? std::pair("3", "2") : std::pair("2", "3");
    EXPECT_EQ(save(first), "");
    open();
    EXPECT_EQ(save(second), "") << "the clerk has not been told of this one yet";
    EXPECT_EQ(added(), "2\n3");
    EXPECT_EQ(files(), 0U);
}

TEST_P(IdentifiedSavesTest, RowsOfNeitherOfTwoSavesThatWereLeftBehindAreRefusedUntilTheEditorIsOpenedAnew) {
    saveLosing(Loss::OfAnswer, "2");
    killAnotherOneSaving("3");
    kill();
    start();
    EXPECT_EQ(save("4"), c_OtherLines);
    EXPECT_EQ(save("4"), c_OtherLines);
    open();
    EXPECT_EQ(save("4"), "");
    EXPECT_EQ(added(), "2\n3\n4");
    EXPECT_EQ(files(), 0U);
}

TEST_P(IdentifiedSavesTest, WorkOnTwoSavesThatWereLeftBehindIsTakenUpForNeither) {
    saveLosing(Loss::OfAnswer, "2");
    killAnotherOneSaving("3");
    kill();
    start();
    open();
    EXPECT_EQ(mayWorkBeTakenUp(), "a_OBNOVDATA = 0");
    open();
    EXPECT_EQ(mayWorkBeTakenUp(), "a_OBNOVDATA = 0");
    open();
    EXPECT_EQ(mayWorkBeTakenUp(), "a_OBNOVDATA = 1");
    EXPECT_EQ(files(), 0U);
}

// The editor's own lines stand in the note already, whatever somebody else's lines were.
TEST_P(IdentifiedSavesTest, RowsThatWereChangedIntoThoseOfAnotherHostsSaveAreRefused) {
    saveLosing(Loss::OfAnswer, "2");
    killAnotherOneSaving("3");
    EXPECT_EQ(save("3"), c_OtherLines);
    EXPECT_EQ(save("2"), "");
    EXPECT_EQ(files(), 1U) << "the other host's, to be asked about once more";
}

TEST_P(IdentifiedSavesTest, AnotherUsersSaveIsHisOwnAffair) {
    saveLosing(Loss::OfAnswer, "2");
    kill();
    start("dvorak");
    EXPECT_EQ(mayWorkBeTakenUp(), "a_OBNOVDATA = 1");
    EXPECT_EQ(save("2"), "");
    EXPECT_EQ(added(), "2\n2");
}

TEST_P(IdentifiedSavesTest, AProgramThatEndsInOrderGivesUpWhatItDoesNotKnow) {
    saveLosing(Loss::OfRequest, "2");
    program_.reset();
    EXPECT_EQ(files(), 0U);
    EXPECT_EQ(rows(*database_, "select count(*) from ULOZENI where DRUH is null"), "1");
}

TEST_P(IdentifiedSavesTest, ADatabaseWithoutIdentitiesIsUsedAsItIsAndTheClerkIsToldToLook) {
    link_->hide("MELVARKEDITORUlozeniOver");
    EXPECT_EQ(save("2"), "");
    EXPECT_EQ(saveLosing(Loss::OfAnswer, "3"), c_LookFirst);
    EXPECT_EQ(files(), 0U);
    EXPECT_EQ(save("4"), "");
    EXPECT_EQ(added(), "2\n3\n4");
    EXPECT_EQ(mayWorkBeTakenUp(), "a_OBNOVDATA = 1");
    EXPECT_EQ(link_->takeCalls(), "ResetTemp DodakInsertToTemp DodakTempUloz ResetTemp DodakInsertToTemp DodakTempUloz "
                                  "ResetTemp DodakInsertToTemp DodakTempUloz DodakObnovData");
}

TEST_P(IdentifiedSavesTest, AnOrderIsSavedOnceAfterALostAnswer) {
    const auto saveOrder = [&] {
        run("ResetTemp");
        EXPECT_EQ(run("DodObjInsertToTemp",
                      {{"a_SKLADPOL", "Sirup"}, {"a_SKPLID", "71"}, {"a_MNOZSTVI", "5"}, {"a_JEDNOTKY", "l"}}),
                  "");
        return run("DodObjTempUloz", {{"a_DDOBID", id(c_FreeOrder)}});
    };
    link_->lose(Loss::OfAnswer, "MELVARKEDITORDodObjTempUloz");
    EXPECT_EQ(saveOrder(), c_Unknown);
    kill();
    start();
    EXPECT_EQ(run("DodObjObnovData", {{"a_DDOBID", id(c_FreeOrder)}}), "a_OBNOVDATA = 0");
    EXPECT_EQ(rows(*database_, "select MNOZSTVI from SCREEN_DODOBJ_LINES_V where _DOCID = 5"), "5");
}

INSTANTIATE_TEST_SUITE_P(OnBothEngines, IdentifiedSavesTest, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace
} // namespace refhost
