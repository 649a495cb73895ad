#include "refhost/tables/ResultModel.h"

#include "refhost/Languages.h"
#include "refhost/tables/ResultOrder.h"
#include "tests/refhost/ScreenRows.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QPalette>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace refhost {

namespace {

using testing::ElementsAre;

class ResultModelTest : public testing::Test {
protected:
    std::vector<std::string> rows(const QAbstractItemModel& model) const {
        std::vector<std::string> result;
        for (int row = 0; row < model.rowCount(); ++row) {
            result.push_back(rowText(model, row));
        }
        return result;
    }

    std::string header() const {
        QStringList titles;
        for (int column = 0; column < model_.columnCount(); ++column) {
            titles.append(model_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
        }
        return titles.join(QStringLiteral(" | ")).toStdString();
    }

    Languages languages_{"cs"};
    ResultModel model_{TFormatSettings::Czech(), languages_, nullptr};
    ResultOrder order_{model_, nullptr};
    QAbstractItemModelTester modelTester_{&model_, QAbstractItemModelTester::FailureReportingMode::Warning};
    QAbstractItemModelTester orderTester_{&order_, QAbstractItemModelTester::FailureReportingMode::Warning};
};

TEST_F(ResultModelTest, ShowsTheColumnsForPeopleUnderCzechTitles) {
    model_.setTable(deliveryNotes());

    EXPECT_EQ(header(), "Číslo | Datum | Dodavatel | Stav | Položek");
    EXPECT_THAT(rows(model_),
                ElementsAre("DL-9 | 1.2.2027 | Železárny | otevřený | 2", "DL-10 | 31.12.2026 | Čapek | uzavřený | 10",
                            "DL-11 | 15.1.2027 | Chládek | otevřený | 0"));
}

TEST_F(ResultModelTest, PutsTheDisplayColumnFirstAndKeepsTheOthersInOrder) {
    model_.setTable(deliveryNotes(), "DODAVATEL");

    EXPECT_EQ(header(), "Dodavatel | Číslo | Datum | Stav | Položek");
    EXPECT_THAT(model_.shownColumns(), ElementsAre("DODAVATEL", "CISLO", "DATUM", "STAV", "POCETPOLOZEK"));
}

TEST_F(ResultModelTest, KeepsHiddenColumnsReachableByNameWithoutRegardToCase) {
    model_.setTable(deliveryNotes());

    EXPECT_EQ(model_.text(1, "_id"), "102");
    EXPECT_EQ(model_.text(1, "NENI"), "");
    EXPECT_TRUE(model_.hasColumn("_OTEVRENO"));
    EXPECT_EQ(model_.shownColumn("_OTEVRENO"), std::nullopt);
}

TEST_F(ResultModelTest, AlignsNumbersRightAndEverythingElseLeft) {
    model_.setTable(deliveryNotes());

    EXPECT_TRUE(model_.data(model_.index(0, 4), Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignRight);
    EXPECT_TRUE(model_.data(model_.index(0, 1), Qt::TextAlignmentRole).value<Qt::Alignment>() & Qt::AlignLeft);
}

TEST_F(ResultModelTest, GreysClosedDocumentsOnly) {
    model_.setTable(deliveryNotes());

    EXPECT_FALSE(model_.data(model_.index(0, 0), Qt::ForegroundRole).isValid());
    const QColor grey = model_.data(model_.index(1, 0), Qt::ForegroundRole).value<QColor>();
    EXPECT_NE(grey, QApplication::palette().color(QPalette::Text));
    EXPECT_NE(grey, QApplication::palette().color(QPalette::Base));
}

TEST_F(ResultModelTest, GroupsTheDigitsOfAmountsButNotOfNumbersOfDocuments) {
    model_.setTable({.Columns = {"CISLO", "CENACELKEM"},
                     .Rows = {{AnsiString("20270001"), AnsiString("1234567,50")},
                              {AnsiString("20270002"), AnsiString("-123,00")},
                              {AnsiString("20270003"), AnsiString("1000")},
                              {AnsiString("20270004"), TDbValue()}}});

    EXPECT_THAT(rows(model_), ElementsAre("20270001 | 1\u00a0234\u00a0567,50", "20270002 | -123,00",
                                          "20270003 | 1\u00a0000", "20270004 | "));
    order_.setSearch(QStringLiteral("1234567")); // found as it is typed, without groups
    EXPECT_EQ(order_.rowCount(), 1);
}

TEST_F(ResultModelTest, TranslatesStatesAndTitles) {
    const Languages english("en");
    ResultModel model(TFormatSettings::English(), english, nullptr);
    model.setTable(deliveryNotes());

    EXPECT_EQ(rowText(model, 1), "DL-10 | 31.12.2026 | Čapek | closed | 10");
    EXPECT_EQ(model.headerData(0, Qt::Horizontal, Qt::DisplayRole).toString(), u"Number");
}

TEST_F(ResultModelTest, SortsByWhatTheValuesMean) {
    model_.setTable(deliveryNotes());

    order_.sort(1, Qt::DescendingOrder);
    EXPECT_EQ(order_.index(0, 0).data().toString(), u"DL-9"); // the latest date, not the highest text
    order_.sort(4, Qt::AscendingOrder);
    EXPECT_EQ(order_.index(2, 0).data().toString(), u"DL-10"); // ten is more than two
    order_.sort(2, Qt::AscendingOrder);
    EXPECT_EQ(order_.index(1, 2).data().toString(), u"Chládek"); // between Č and Ž
}

TEST_F(ResultModelTest, RowsThatAreAlikeComeBackToTheirPlacesAfterASearch) {
    model_.setTable({.Columns = {"CISLO", "DATUM"},
                     .Rows = {{AnsiString("EXP-280"), AnsiString("22.11.2026")},
                              {AnsiString("EXP-185"), AnsiString("22.11.2026")},
                              {AnsiString("DL-577"), AnsiString("22.11.2026")},
                              {AnsiString("DL-900"), AnsiString("23.11.2026")}}});
    const std::vector<std::string> alike{"EXP-280 | 22.11.2026", "EXP-185 | 22.11.2026", "DL-577 | 22.11.2026"};
    for (const Qt::SortOrder direction : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        std::vector<std::string> expected = alike;
        expected.insert(direction == Qt::AscendingOrder ? expected.end() : expected.begin(), "DL-900 | 23.11.2026");
        order_.sort(1, direction);
        EXPECT_EQ(rows(order_), expected);
        order_.setSearch(QStringLiteral("185"));
        order_.setSearch({});
        EXPECT_EQ(rows(order_), expected) << "after a search";
    }
}

TEST_F(ResultModelTest, SearchesTheShownColumnsOnly) {
    model_.setTable(deliveryNotes());

    order_.setSearch(QStringLiteral("zeleza 2027"));
    EXPECT_THAT(rows(order_), ElementsAre("DL-9 | 1.2.2027 | Železárny | otevřený | 2"));
    order_.setSearch(QStringLiteral("102")); // a record number, which nobody sees
    EXPECT_EQ(order_.rowCount(), 0);
    order_.setSearch({});
    EXPECT_EQ(order_.rowCount(), 3);
}

TEST_F(ResultModelTest, TellsTheLongTextsOfAColumnForItsWidth) {
    model_.setTable({.Columns = {"JMENO", "_ID"},
                     .Rows = {{AnsiString("Ab"), TDbValue()},
                              {AnsiString("Abcdefgh"), TDbValue()},
                              {AnsiString("Wwwwww"), TDbValue()}, // shorter, but wide letters
                              {AnsiString("Abcdefgh"), TDbValue()}}});

    QStringList texts = model_.longTexts(0);
    texts.sort();
    EXPECT_EQ(texts, (QStringList{QStringLiteral("Abcdefgh"), QStringLiteral("Wwwwww")}));
}

TEST_F(ResultModelTest, FindsTheLongestTextBehindThousandsOfOthers) {
    TResultTable table{.Columns = {"JMENO"}, .Rows = {}};
    for (int row = 1000; row < 9000; ++row) {
        table.Rows.push_back({"Dodavatel " + std::to_string(row)});
    }
    table.Rows.push_back({AnsiString("Dodavatel 10000")});
    model_.setTable(table);

    EXPECT_TRUE(model_.longTexts(0).contains(QStringLiteral("Dodavatel 10000")));
    EXPECT_LE(model_.longTexts(0).size(), 100);
}

TEST_F(ResultModelTest, TakesANewResultWithOtherColumns) {
    model_.setTable(deliveryNotes());
    order_.sort(4, Qt::AscendingOrder);
    order_.setSearch(QStringLiteral("d"));

    model_.setTable({.Columns = {"NAZEV"}, .Rows = {{AnsiString("Voda")}, {AnsiString("Šrouby")}}});

    EXPECT_THAT(rows(order_), ElementsAre("Voda"));
}

} // namespace

} // namespace refhost
