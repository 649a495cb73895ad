#include "host/DataSet.h"

#include "tests/host/FakeHost.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

const TFormatSettings c_Czech = TFormatSettings::Czech();

TField field(TDbValue value) {
    return TField("MNOZSTVI", std::move(value), c_Czech);
}

TDbValue integer(std::int64_t value) {
    return value;
}

TDbValue text(const char* value) {
    return AnsiString(value);
}

TEST(Field, NullReadsAsNothing) {
    const TField null = field({});
    EXPECT_TRUE(null.IsNull());
    EXPECT_EQ(null.AsString(), "");
    EXPECT_EQ(null.AsInteger(), 0);
    EXPECT_EQ(null.AsFloat(), 0.0);
    EXPECT_FALSE(null.AsBoolean());
    EXPECT_EQ(null.AsDateTime(), TDateTime{});
}

TEST(Field, AnEmptyTextIsNotNull) {
    EXPECT_FALSE(field(text("")).IsNull());
}

TEST(Field, ReadsAsText) {
    EXPECT_EQ(field(integer(-7)).AsString(), "-7");
    EXPECT_EQ(field(12.5).AsString(), "12,5");
    EXPECT_EQ(field(true).AsString(), "1");
    EXPECT_EQ(field(false).AsString(), "0");
    EXPECT_EQ(field(text(" Šroub ")).AsString(), " Šroub ");
}

TEST(Field, ReadsAsInteger) {
    EXPECT_EQ(field(integer(2147483647)).AsInteger(), 2147483647);
    EXPECT_EQ(field(integer(std::numeric_limits<std::int32_t>::min())).AsInteger(),
              std::numeric_limits<std::int32_t>::min());
    EXPECT_EQ(field(7.0).AsInteger(), 7);
    EXPECT_EQ(field(true).AsInteger(), 1);
    EXPECT_EQ(field(false).AsInteger(), 0);
    EXPECT_EQ(field(text(" 12 ")).AsInteger(), 12);
}

TEST(Field, NamesItselfWhenItIsNoInteger) {
    EXPECT_EQ(messageOf<EConvertError>([] { field(text("abc")).AsInteger(); }),
              "Hodnota „abc“ pole MNOZSTVI není celé číslo.");
    EXPECT_THROW(field(text("")).AsInteger(), EConvertError);
    EXPECT_THROW(field(integer(2147483648)).AsInteger(), EConvertError);
    EXPECT_THROW(field(integer(-2147483649)).AsInteger(), EConvertError);
    EXPECT_THROW(field(7.5).AsInteger(), EConvertError);
    EXPECT_THROW(field(1e12).AsInteger(), EConvertError);
    EXPECT_THROW(field(-1e12).AsInteger(), EConvertError);
}

TEST(Field, ReadsAsFloat) {
    EXPECT_EQ(field(integer(7)).AsFloat(), 7.0);
    EXPECT_EQ(field(0.25).AsFloat(), 0.25);
    EXPECT_EQ(field(true).AsFloat(), 1.0);
    EXPECT_EQ(field(false).AsFloat(), 0.0);
    EXPECT_EQ(field(text("12,5")).AsFloat(), 12.5);
    EXPECT_EQ(messageOf<EConvertError>([] { field(text("12.5")).AsFloat(); }),
              "Hodnota „12.5“ pole MNOZSTVI není desetinné číslo.");
}

TEST(Field, ReadsAsBoolean) {
    EXPECT_TRUE(field(true).AsBoolean());
    EXPECT_FALSE(field(false).AsBoolean());
    EXPECT_TRUE(field(integer(-1)).AsBoolean());
    EXPECT_FALSE(field(integer(0)).AsBoolean());
    EXPECT_TRUE(field(0.5).AsBoolean());
    EXPECT_TRUE(field(text("1")).AsBoolean());
    EXPECT_TRUE(field(text("True")).AsBoolean());
    EXPECT_FALSE(field(text("0")).AsBoolean());
    EXPECT_FALSE(field(text("false")).AsBoolean());
    EXPECT_EQ(messageOf<EConvertError>([] { field(text("ano")).AsBoolean(); }),
              "Hodnota „ano“ pole MNOZSTVI není hodnota ano/ne.");
}

TEST(Field, ReadsAsDateAndTime) {
    using namespace std::chrono_literals;
    const TDateTime expected = TDateTime(std::chrono::local_days(2027y / 2 / 1)) + 13h + 45min;
    EXPECT_EQ(field(text("1.2.2027 13:45")).AsDateTime(), expected);
    EXPECT_EQ(field(text("2027-02-01 13:45:00")).AsDateTime(), expected);
    EXPECT_EQ(messageOf<EConvertError>([] { field(integer(7)).AsDateTime(); }),
              "Hodnota „7“ pole MNOZSTVI není datum a čas.");
    EXPECT_THROW(field(text("31.4.2027")).AsDateTime(), EConvertError);
}

/// A screen that stands on a document with one column.
class OneColumn : public TDataSet {
public:
    bool IsEmpty() const override { return false; }
    std::optional<TField> FindField(std::string_view name) const override {
        if (!SameDbName(name, "_ID")) {
            return std::nullopt;
        }
        return TField("_ID", std::int64_t{42}, c_Czech);
    }
};

TEST(DataSet, GivesTheFieldOfThatName) {
    EXPECT_EQ(OneColumn().FieldByName("_id").AsInteger(), 42);
}

TEST(DataSet, NamesTheMissingField) {
    EXPECT_EQ(messageOf<EDatabaseError>([] { OneColumn().FieldByName("_DODVID"); }), "Záznam nemá pole _DODVID.");
}

} // namespace
