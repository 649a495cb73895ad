#include "host/Exceptions.h"
#include "tests/editors/EditorRules.h"

#include <algorithm>
#include <optional>

namespace {

using testing::ElementsAre;
using testing::SizeIs;
using testing::StartsWith;

class DodakSaving : public EditorRules {
protected:
    /// The error with which the rows are not inserted; nothing when they are.
    std::optional<EDatabaseError> refusal() {
        try {
            insertRows();
            return std::nullopt;
        } catch (const EDatabaseError& error) {
            return error;
        }
    }

    bool insertRows() {
        const melvark::DocumentKind& kind = melvark::c_DodakKind;
        return melvark::InsertRows(kind.InsertProcedure, kind.RowParams, columns(), store_);
    }
};

// Every cell holds its own column key, so that the line below reads as "parameter = column"; a key with a comma shows
// which ones travel as number texts.
TEST_F(DodakSaving, ARowsParametersStandInTheirOrderWithTheirColumns) {
    LineCells line;
    for (const AnsiString& key : dodakKeys()) {
        line[key] = key + ",";
    }
    putLine(0, line);
    EXPECT_TRUE(insertRows());
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodakInsertToTemp("
                            "a_DOBSID=\"DOBSID,\", a_SKLADPOL=\"SKLADPOL,\", a_SKLAD=\"SKLAD,\", "
                            "a_MNOZSTVI=\"MNOZSTVI.\", a_DPH=\"DPH,\", a_SLEVA=\"SLEVA.\", "
                            "a_JEDNCENABSL=\"JEDNCENABSESLEVOU.\", a_JEDNDPHASL=\"JEDNDPHASESLEVOU.\", "
                            "a_JEDNDPHBSL=\"JEDNDPHBSESLEVOU.\", a_JEDNCENASSL=\"JEDNCENASSESLEVOU.\", "
                            "a_JEDNCENAB=\"JEDNCENABBEZSLEVY.\", a_JEDNDPHA=\"JEDNDPHABEZSLEVY.\", "
                            "a_JEDNDPHB=\"JEDNDPHBBEZSLEVY.\", a_JEDNCENAS=\"JEDNCENASBEZSLEVY.\", "
                            "a_CENABSL=\"CENABSESLEVOU.\", a_DPHASL=\"DPHASESLEVOU.\", a_DPHBSL=\"DPHBSESLEVOU.\", "
                            "a_CENASSL=\"CENASSESLEVOU.\", a_CENAB=\"CENABBEZSLEVY.\", a_DPHA=\"DPHABEZSLEVY.\", "
                            "a_DPHB=\"DPHBBEZSLEVY.\", a_CENAS=\"CENASBEZSLEVY.\", "
                            "a_TRVANLIVOST=\"TRVANLIVOST,\")"));
}

TEST_F(DodakSaving, AnEmptyGridIsOneRowOfNulls) {
    store_.SetRowCount(0);
    EXPECT_TRUE(insertRows());
    ASSERT_THAT(host_.connection.calls(), SizeIs(1));
    const AnsiString line = host_.connection.calls().front();
    EXPECT_EQ(std::count(line.begin(), line.end(), '='), 23);
    EXPECT_EQ(line.find('"'), AnsiString::npos) << line;
    std::size_t nulls = 0;
    for (std::size_t at = line.find("=null"); at != AnsiString::npos; at = line.find("=null", at + 1)) {
        ++nulls;
    }
    EXPECT_EQ(nulls, 23u);
}

TEST_F(DodakSaving, RowsAreSentFromTheFirstToTheLast) {
    for (int row = 0; row < 3; ++row) {
        putLine(row, {{"DOBSID", std::to_string(row)}});
    }
    EXPECT_TRUE(insertRows());
    EXPECT_THAT(host_.connection.calls(), ElementsAre(StartsWith("MELVARKEDITORDodakInsertToTemp(a_DOBSID=\"0\","),
                                                      StartsWith("MELVARKEDITORDodakInsertToTemp(a_DOBSID=\"1\","),
                                                      StartsWith("MELVARKEDITORDodakInsertToTemp(a_DOBSID=\"2\",")));
}

TEST_F(DodakSaving, TheUsersColumnOrderAndHiddenColumnsDoNotMatter) {
    putLine(0, {{"SKLADPOL", "Mléko"}, {"MNOZSTVI", "1,5"}, {"CENASBEZSLEVY", "20,00"}});
    std::reverse(active_.begin(), active_.end());
    for (RColumn& column : active_) {
        column.Visible = false;
    }
    std::erase_if(active_, [](const RColumn& column) { return column.Name == "MNOZSTVI"; });
    insertRows();
    EXPECT_THAT(host_.connection.calls(),
                ElementsAre("MELVARKEDITORDodakInsertToTemp(a_DOBSID=null, a_SKLADPOL=\"Mléko\", a_SKLAD=null, "
                            "a_MNOZSTVI=\"1.5\", a_DPH=null, a_SLEVA=null, a_JEDNCENABSL=null, a_JEDNDPHASL=null, "
                            "a_JEDNDPHBSL=null, a_JEDNCENASSL=null, a_JEDNCENAB=null, a_JEDNDPHA=null, "
                            "a_JEDNDPHB=null, a_JEDNCENAS=null, a_CENABSL=null, a_DPHASL=null, a_DPHBSL=null, "
                            "a_CENASSL=null, a_CENAB=null, a_DPHA=null, a_DPHB=null, a_CENAS=\"20.00\", "
                            "a_TRVANLIVOST=null)"));
}

TEST_F(DodakSaving, AReportedFailureStopsAtOnce) {
    for (int row = 0; row < 3; ++row) {
        putLine(row, {{"DOBSID", std::to_string(row)}});
    }
    host_.connection.procedure("MELVARKEDITORDodakInsertToTemp").failsCall(2);
    EXPECT_FALSE(insertRows());
    EXPECT_THAT(host_.connection.calls(), SizeIs(2));
}

TEST_F(DodakSaving, ARefusedRowIsTheDatabasesErrorAndNamesItsLine) {
    host_.connection.procedure("MELVARKEDITORDodakInsertToTemp").refusesCall(2, "Sklad Brno neexistuje.", "ML044");
    putLine(2, {{"SKLAD", "Brno"}});
    const std::optional<EDatabaseError> error = refusal();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Message(), "Sklad Brno neexistuje.") << "as the database wrote it, so that it can be translated";
    EXPECT_EQ(error->Code(), "ML044");
    EXPECT_EQ(error->Row(), 1);
}

TEST_F(DodakSaving, ALineThatTheConnectionNamesIsTheRefusedOne) {
    host_.connection.procedure("MELVARKEDITORDodakInsertToTemp")
        .answersCall(3, [](const TProcedureCall&) -> TCallResult {
            throw EDatabaseError("Sklad Brno neexistuje.").AboutRow(1);
        });
    putLine(2, {{"SKLAD", "Brno"}});
    const std::optional<EDatabaseError> error = refusal();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Row(), 1);
}

TEST_F(DodakSaving, AFailureOfTheDatabaseIsAboutNoLine) {
    host_.connection.procedure("MELVARKEDITORDodakInsertToTemp").breaksAtCall(2, "Spojení se přerušilo.");
    putLine(2, {{"SKLAD", "Brno"}});
    const std::optional<EDatabaseError> error = refusal();
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Row(), std::nullopt);
}

} // namespace
