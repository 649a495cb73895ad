#include "refhost/dbcheck/Exercise.h"

#include "refhost/database/Databases.h"
#include "tests/database/Contract.h"
#include "tests/database/ContractCompany.h"
#include "tests/dbcheck/BehaviourFaults.h"
#include "tests/dbcheck/Broken.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

namespace refhost {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::Field;
using testing::IsEmpty;
using testing::StartsWith;

std::int32_t documentOf(std::string_view screen) {
    return static_cast<std::int32_t>(screen == "DODAK" ? c_OpenNote : screen == "DODOBJ" ? c_Order : c_Template);
}

/// A company with its two sessions.
class ExercisedCompany {
public:
    explicit ExercisedCompany(Engine engine) : engine_(engine), url_(newDatabaseUrl(engine)) {
        addContractCompany(*openAs(url_, "novakova"));
    }

    void edit(const std::vector<ProcedureEdit>& edits) {
        for (const ProcedureEdit& edit : edits) {
            std::string sql = editedProcedure(engine_, edit);
            if (engine_ == Engine::SQLite) {
                scripts_.emplace_back(edit.Procedure, std::move(sql));
                continue;
            }
            const std::string name = edit.Procedure;
            sql.replace(sql.find("create function"), std::string_view("create function").size(),
                        "create or replace function");
            runIn(checkedAddress(engine_, url_),
                  sql +
                      "; do $do$ begin execute format('alter function %s security definer set search_path = melvark, "
                      "pg_temp', (select oid::regprocedure from pg_proc where proname = lower('" +
                      name + "'))); end $do$");
        }
    }

    ExerciseOutcome exercise(std::string_view screen, std::int32_t document) {
        const auto first = open();
        const auto second = open();
        ExerciseOutcome outcome;
        refhost::exercise(contract(), *exerciseKind(screen), document, TFormatSettings::Czech(), *first, *second,
                          outcome);
        return outcome;
    }

    std::unique_ptr<Database> open() const {
        auto database = openAs(url_, "novakova");
        if (!scripts_.empty()) {
            useScripts(*database);
        }
        return database;
    }

private:
    void useScripts(Database& database) const {
        const std::filesystem::path folder = std::filesystem::path(newSQLiteUrl().substr(7)).replace_extension("sql");
        std::filesystem::create_directory(folder);
        for (const auto& [name, text] : scripts_) {
            std::ofstream(folder / (name + ".sql")) << text;
        }
        database.useProcedures(folder.string());
    }

    Engine engine_;
    std::string url_;
    std::vector<std::pair<std::string, std::string>> scripts_;
};

class HealthyProcedures : public testing::TestWithParam<Engine> {};
class FaultOfBehaviour : public testing::TestWithParam<BehaviourFault> {};

TEST_P(HealthyProcedures, HaveNoFindingOnAnyKindOfDocument) {
    ExercisedCompany company(GetParam());
    for (const char* screen : {"DODAK", "DODOBJ", "DODOBJVZOR"}) {
        const ExerciseOutcome outcome = company.exercise(screen, documentOf(screen));
        EXPECT_THAT(sentencesOf(outcome.Found), IsEmpty()) << screen;
        EXPECT_THAT(
            outcome.Left,
            ElementsAre(Written{Written::What::Lines, screen + (" " + std::to_string(documentOf(screen))), 4},
                        Written{Written::What::Identities, screen + (" " + std::to_string(documentOf(screen))), 2},
                        Field(&Written::Object, StartsWith("melvark-dbcheck ")),
                        Written{Written::What::Placement, "9999", 1}))
            << screen;
    }
}

TEST_P(HealthyProcedures, AreChangedNowhereButWhereTheListSays) {
    ExercisedCompany company(GetParam());
    const std::vector<std::string> changed{"DODAKPOL", "EDITOROKNO", "ULOZENI", "UZIVATEL"};
    const std::string before = digest(*company.open(), changed);
    company.exercise("DODAK", documentOf("DODAK"));
    const auto database = company.open();
    EXPECT_EQ(digest(*database, changed), before);
    EXPECT_EQ(rows(*database, "select _DOCID, MNOZSTVI from SCREEN_DODAK_LINES_V where _DOCID = 2 order by PORADI"),
              "2 | 1\n2 | 1\n2 | 2,5\n2 | 3\n2 | 4");
}

TEST_P(HealthyProcedures, ADocumentThatIsClosedIsNotTried) {
    ExercisedCompany company(GetParam());
    EXPECT_THROW(company.exercise("DODAK", static_cast<std::int32_t>(c_NoteOfMill)), EDatabaseError);
}

INSTANTIATE_TEST_SUITE_P(OnBothEngines, HealthyProcedures, testing::Values(Engine::SQLite, Engine::PostgreSQL),
                         [](const auto& each) { return engineName(each.param); });

TEST_P(FaultOfBehaviour, IsFoundAndNamed) {
    ExercisedCompany company(GetParam().On);
    company.edit(GetParam().Edits);
    const ExerciseOutcome outcome = company.exercise(GetParam().Screen, documentOf(GetParam().Screen));
    EXPECT_THAT(sentencesOf(outcome.Found), ElementsAreArray(GetParam().Sentences));
}

INSTANTIATE_TEST_SUITE_P(Each, FaultOfBehaviour, testing::ValuesIn(behaviourFaults()),
                         [](const auto& each) { return engineName(each.param.On) + each.param.Name; });

TEST(Exercise, KnowsTheThreeScreensAndNoOther) {
    EXPECT_NE(exerciseKind("DODOBJVZOR"), nullptr);
    EXPECT_EQ(exerciseKind("FAKTURY"), nullptr);
}

} // namespace
} // namespace refhost
