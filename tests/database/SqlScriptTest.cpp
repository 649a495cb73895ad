#include "refhost/database/SqlScript.h"

#include <gmock/gmock.h>
#include <stdexcept>

namespace refhost {
namespace {

using testing::ElementsAre;

constexpr SqlFile c_Files[] = {
    {"procedures/CALL.sql",
     "-- Does something.\n--\n-- in: a_ID integer\n-- in: a_FLAG boolean\n-- in: a_TEXT\n-- out: "
     "a_OUT\n-- returns: ID, NAZEV\n-- after failure: staging refused\n\nselect 1;\n-- include: "
     "tail\n"},
    {"parts/tail.sql", "-- returns: SUM\nselect 2;\n"},
    {"procedures/LOST.sql", "-- include: nowhere\n"},
    {"procedures/ODD.sql", "-- in: a_ID money\n"},
};

TEST(SqlScript, TheHeaderDeclaresParametersAndResults) {
    const SqlScript script = readSqlScript(c_Files[0], c_Files);
    EXPECT_EQ(script.Name, "CALL");
    ASSERT_EQ(script.Inputs.size(), 3U);
    EXPECT_EQ(script.Inputs[0].Name, "a_ID");
    EXPECT_EQ(script.Inputs[0].Kind, ParameterKind::Integer);
    EXPECT_EQ(script.Inputs[1].Kind, ParameterKind::Boolean);
    EXPECT_EQ(script.Inputs[2].Kind, ParameterKind::Text); // the kind that needs no word
    EXPECT_THAT(script.Outputs, ElementsAre("a_OUT"));
    EXPECT_TRUE(script.FailureRefusesStaging);
}

TEST(SqlScript, APartStandsWhereItIsIncludedWithWhatItReturns) {
    const SqlScript script = readSqlScript(c_Files[0], c_Files);
    EXPECT_THAT(script.Results, ElementsAre(ElementsAre("ID", "NAZEV"), ElementsAre("SUM")));
    EXPECT_LT(script.Text.find("select 1;"), script.Text.find("select 2;"));
}

TEST(SqlScript, AMissingPartOrAnUnknownKindIsOurMistake) {
    EXPECT_THROW(readSqlScript(c_Files[2], c_Files), std::logic_error);
    EXPECT_THROW(readSqlScript(c_Files[3], c_Files), std::logic_error);
}

} // namespace
} // namespace refhost
