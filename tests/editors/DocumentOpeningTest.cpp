#include "editors/DocumentOpening.h"

#include "host/Exceptions.h"
#include "tests/support/RecordingHost.h"

#include <array>
#include <gmock/gmock.h>
#include <optional>
#include <string_view>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A kind of document with one flag, one list and one callback.
struct Bindings {
    TColumnCallback Changed{};
    bool IsOffered = false;
    std::vector<AnsiString> Colours{};
};

constexpr std::array<std::string_view, 2> c_EditTypes{"ORDER", "NOTE"};
constexpr std::array c_Columns{
    melvark::ColumnRow<Bindings>{.Key = "COLOUR",
                                 .List = &Bindings::Colours,
                                 .Changed = &Bindings::Changed,
                                 .OfferedWhen = &Bindings::IsOffered},
    melvark::ColumnRow<Bindings>{.Key = "PRICE"},
};
constexpr melvark::OpeningTable<Bindings> c_Table{
    .EditTypes = c_EditTypes,
    .Procedure = "INIT",
    .Init =
        [](TLiveStoredProc& initialisation, Bindings& bindings) {
            bindings.IsOffered = initialisation.FieldByName("OFFERED").AsInteger() == 1;
            bindings.Colours = {initialisation.FieldByName("COLOUR").AsString()};
        },
    .Columns = c_Columns};

class EUnknown : public Exception {
public:
    using Exception::Exception;
};

class DocumentOpening : public testing::Test {
protected:
    DocumentOpening() {
        host_.connection.procedure("INIT").returns(
            {resultTable({"UZIVATEL", "OFFERED", "COLOUR"}, {{"novak", "1", "blue"}})});
    }

    static melvark::DocumentOpening open(const AnsiString& editType) {
        return melvark::OpenDocument<EUnknown>(c_Table, editType, 7);
    }

    RecordingHost host_;
    TScopedHost scope_{host_};
};

TEST_F(DocumentOpening, KnowsTheDocumentItsSourceAndTheUser) {
    const melvark::DocumentOpening opening = open("NOTE");
    EXPECT_EQ(opening.DocumentID, 7);
    EXPECT_EQ(opening.EditType, "NOTE");
    EXPECT_EQ(opening.SourceNumber, 2);
    EXPECT_EQ(open("ORDER").SourceNumber, 1);
    EXPECT_EQ(opening.UserName, "novak");
    EXPECT_THAT(host_.connection.calls(), ElementsAre("INIT() open", "INIT() open"));
}

TEST_F(DocumentOpening, AnEditTypeThatIsNotExactlyOneOfTheTableIsRefusedBeforeTheDatabaseIsAsked) {
    host_.translations[R"(KORDAN30\MELVARKEDITOR\INVALIDEDITTYPE)"] = "Unknown edit type: %s";
    for (const char* editType : {"note", "", "NOTE ", "DODAK"}) {
        try {
            open(editType);
            ADD_FAILURE() << "no error for " << editType;
        } catch (const EUnknown& error) {
            EXPECT_EQ(error.Message(), "Unknown edit type: " + AnsiString(editType)) << "in the user's language";
        }
    }
    EXPECT_THAT(host_.connection.calls(), IsEmpty());
}

TEST_F(DocumentOpening, TheColumnsAreBoundToWhatWasReadAsLongAsTheBindingsLive) {
    std::shared_ptr<const void> bindings;
    std::vector<RColumn> columns;
    {
        melvark::DocumentOpening opening = open("ORDER");
        bindings = opening.Bindings;
        columns = std::move(opening.Columns);
    }
    ASSERT_THAT(columns, SizeIs(2));
    ASSERT_TRUE(columns[0].Values);
    EXPECT_THAT(*columns[0].Values, ElementsAre("blue"));
    EXPECT_EQ(columns[0].ColumnType, ctNormal) << "its flag is on";
    EXPECT_EQ(columns[1].Values, nullptr);
}

TEST_F(DocumentOpening, CallbacksComeInWithTheBindings) {
    std::optional<int> changedRow;
    const melvark::DocumentOpening opening = melvark::OpenDocument<EUnknown>(
        c_Table, "ORDER", 7, {.Changed = [&](int, int row, const AnsiString&) { return (changedRow = row) > 0; }});
    ASSERT_TRUE(opening.Columns[0].Callback);
    opening.Columns[0].Callback(1, 5, "");
    EXPECT_EQ(changedRow, 5);
    EXPECT_FALSE(opening.Columns[1].Callback);
}

TEST_F(DocumentOpening, ARefusedInitialisationIsTheDatabasesError) {
    host_.connection.procedure("INIT").refusesCall(1, "Uživatel nemá práva.");
    EXPECT_THROW(open("ORDER"), EDatabaseError);
}

TEST_F(DocumentOpening, WarehousesStandAsTheDatabaseSortsThem) {
    host_.connection.answerQuery("select NAZEV from SKLAD_V order by NAZEV",
                                 resultTable({"NAZEV"}, {{"Hodonín"}, {"Cheb"}}));
    EXPECT_THAT(melvark::FillSkladList(), ElementsAre("Hodonín", "Cheb"));
}

TEST_F(DocumentOpening, ADocumentIsCheckedByItsIdentifier) {
    host_.connection.procedure("CHECK").inputs({"a_ID"}).failsCall(2).refusesCall(3, "Doklad je uzavřen.");
    EXPECT_TRUE(melvark::CheckMasterDocument("CHECK", "a_ID", 7));
    EXPECT_FALSE(melvark::CheckMasterDocument("CHECK", "a_ID", 7));
    EXPECT_THROW(melvark::CheckMasterDocument("CHECK", "a_ID", 7), EDatabaseError);
    EXPECT_THAT(host_.connection.calls(), ElementsAre("CHECK(a_ID=7)", "CHECK(a_ID=7)", "CHECK(a_ID=7)"));
}

} // namespace
