#include "refhost/database/ProcedureFolder.h"

#include "tests/database/SQLiteFile.h"

#include <fstream>
#include <gmock/gmock.h>

namespace refhost {
namespace {

using testing::HasSubstr;

/// A company's file with a folder of an integrator's procedures beside it.
class ProcedureFolderTest : public testing::Test {
protected:
    ProcedureFolderTest() : folder_(file_.folder() / "own") { std::filesystem::create_directory(folder_); }

    void write(const std::string& name, const std::string& text) const { std::ofstream(folder_ / name) << text; }

    EDatabaseError refusalOfTheFolder() const {
        try {
            file_.open()->useProcedures(folder_.string());
        } catch (const EDatabaseError& error) {
            return error;
        }
        return EDatabaseError("none");
    }

    SQLiteFile file_;
    std::filesystem::path folder_;
};

TEST_F(ProcedureFolderTest, AScriptTakesThePlaceOfTheProcedureOfItsName) {
    write("melvarkeditordodobjinit.sql",
          "-- returns: UZIVATEL\nselect 'vlastní ' || current_user_name() as UZIVATEL;\n");
    const auto database = file_.createCompany();
    database->Execute(procedureCall("MELVARKEDITORDodObjInit"));

    database->useProcedures(folder_.string());

    const TCallResult own = database->Execute(procedureCall("MELVARKEDITORDodObjInit"));
    EXPECT_EQ(std::get<AnsiString>(own.Sets.at(0).Rows.at(0).at(0)), "vlastní novakova");
    EXPECT_EQ(database->Execute(procedureCall("MELVARKEDITORDodakInit")).Sets.size(), 3U) << "the others stay";
}

TEST_F(ProcedureFolderTest, AScriptMayIncludeWhatTheShippedOnesInclude) {
    write("MELVARKEDITORDodObjInit.sql",
          "-- returns: UZIVATEL\n-- include: user-row\nselect current_user_name() as UZIVATEL;\n");
    const auto database = file_.createCompany();
    database->useProcedures(folder_.string());
    EXPECT_EQ(database->Execute(procedureCall("MELVARKEDITORDodObjInit")).Sets.size(), 1U);
}

TEST_F(ProcedureFolderTest, OtherFilesOfTheFolderAreNoConcern) {
    write("README.md", "Naše procedury");
    EXPECT_EQ(refusalOfTheFolder().Message(), "none");
}

TEST_F(ProcedureFolderTest, AMisspeltNameIsRefusedAndNamed) {
    write("MELVARKEDITORDodObjlnit.sql", "select 1;");
    EXPECT_EQ(refusalOfTheFolder().Code(), "ML932");
    EXPECT_THAT(refusalOfTheFolder().Message(), HasSubstr("„MELVARKEDITORDodObjlnit“ nenahrazuje žádnou proceduru"));
}

TEST_F(ProcedureFolderTest, AMistakeInAHeaderIsRefusedAtOnceAndItsReasonIsInTheDetails) {
    write("MELVARKEDITORDodObjInit.sql", "-- in: a_X number\nselect 1;\n");
    EXPECT_EQ(refusalOfTheFolder().Code(), "ML932");
    EXPECT_THAT(refusalOfTheFolder().Details(), HasSubstr("number"));
}

TEST_F(ProcedureFolderTest, AScriptThatBringsOtherColumnsThanItsHeaderSaysIsRefusedAtItsCall) {
    write("MELVARKEDITORDodObjInit.sql", "-- returns: UZIVATEL\nselect 1 as JINY;\n");
    const auto database = file_.createCompany();
    database->useProcedures(folder_.string());
    EXPECT_EQ(refusalCode([&] { database->Execute(procedureCall("MELVARKEDITORDodObjInit")); }), "ML932");
}

TEST_F(ProcedureFolderTest, AFolderThatIsNotThereIsRefused) {
    const auto database = file_.createCompany();
    EXPECT_EQ(refusalCode([&] { database->useProcedures((folder_ / "nowhere").string()); }), "ML932");
}

} // namespace
} // namespace refhost
