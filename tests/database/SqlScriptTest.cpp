#include "refhost/database/SqlScript.h"

#include <gmock/gmock.h>
#include <stdexcept>

namespace refhost {
namespace {

using testing::ElementsAre;

constexpr SqlFile c_Files[] = {
    {"procedures/CALL.sql",
     "-- Does something.\n--\n-- in: a_ID integer\n-- in: a_FLAG boolean\n-- in: a_TEXT\n-- out: "
     "a_OUT\n-- returns: ID, NAZEV\n-- begins: a save\n-- answer: may come later\n"
     "-- after failure: staging refused\n\nselect 1;\n-- include: tail\n"},
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
    EXPECT_TRUE(script.Save.FailureRefusesStaging);
    EXPECT_TRUE(script.Save.AnswerMayComeLater);
    EXPECT_TRUE(script.Save.Begins);
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

/// Read as a procedure of its own.
SqlScript scriptOf(std::string_view text) {
    const SqlFile file{"procedures/X.sql", text};
    return readSqlScript(file, std::span(&file, 1));
}

TEST(SqlScript, AMisspeltDeclarationIsOurMistake) {
    for (const char* text : {
             "-- Does something.\n--\n-- after failures: staging refused\n\nselect 1;\n",
             "-- Does something.\n--\n-- After failure: staging refused\n\nselect 1;\n",
             "-- Does something.\n--\n-- after failure: staging is refused\n\nselect 1;\n",
             "-- Does something.\n--\n-- after failure:\n\nselect 1;\n",
             "-- Does something.\n--\n-- answer: may come later.\n\nselect 1;\n",
             "-- Does something.\n--\n-- answers: may come later\n\nselect 1;\n",
             "-- Does something.\n--\n-- begins: the save\n\nselect 1;\n",
             "-- Does something.\n--\n-- in: a_ID integer\n-- return: ID\n\nselect 1;\n",
             "-- Does something.\n--\n--in: a_ID integer\n\nselect 1;\n",
             "-- Does something.\n-- in: a_ID integer\n\nselect 1;\n",
             "-- Does something.\n\n-- in: a_ID integer\nselect 1;\n",
         }) {
        EXPECT_THROW(scriptOf(text), std::logic_error) << text;
    }
}

TEST(SqlScript, ProseMayHaveColons) {
    const SqlScript script = scriptOf("-- Two things: one\n-- and another.\n--\n-- a_ID: the one.\n--\n"
                                      "-- Refusals: ML001 it is wrong.\n--\n-- in: a_ID\n\n"
                                      "-- Said once more: it is.\nselect 1;\n");
    EXPECT_EQ(script.Inputs.size(), 1U);
    EXPECT_NE(script.Text.find("select 1;"), std::string::npos);
}

} // namespace
} // namespace refhost
