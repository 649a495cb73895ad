#include "host/HostServices.h"

#include "tests/host/FakeHost.h"

#include <gtest/gtest.h>

namespace {

TEST(CurrentHost, IsRefusedWhileNoneIsInstalled) {
    EXPECT_EQ(messageOf<EHostError>([] { CurrentHost(); }), "Hostitelská aplikace neposkytuje své služby.");
}

TEST(ScopedHost, BringsBackTheHostBefore) {
    FakeHost outer;
    FakeHost inner;
    const TScopedHost installedOuter(outer);
    {
        const TScopedHost installedInner(inner);
        EXPECT_EQ(&CurrentHost(), &inner);
    }
    EXPECT_EQ(&CurrentHost(), &outer);
}

TEST(ScopedHost, LeavesNoneBehindTheLast) {
    FakeHost host;
    { const TScopedHost installed(host); }
    EXPECT_THROW(CurrentHost(), EHostError);
}

TEST(FormatSettings, CzechAndEnglishDifferWherePeopleDo) {
    const TFormatSettings czech = TFormatSettings::Czech();
    EXPECT_EQ(czech.DecimalSeparator, ',');
    EXPECT_EQ(czech.ThousandSeparator, "\xC2\xA0");
    EXPECT_EQ(czech.CurrencyString, "Kč");
    EXPECT_EQ(czech.DateOrder, TDateOrder::DayMonthYear);
    EXPECT_EQ(czech.DateSeparator, '.');

    const TFormatSettings english = TFormatSettings::English();
    EXPECT_EQ(english.DecimalSeparator, '.');
    EXPECT_EQ(english.ThousandSeparator, ",");
    EXPECT_EQ(english.CurrencyString, "CZK");
    EXPECT_EQ(english.DateOrder, TDateOrder::DayMonthYear);
    EXPECT_EQ(english.DateSeparator, '/');
}

} // namespace
