#include "host/Exceptions.h"
#include "tests/database/ContractCompany.h"
#include "tests/database/Staging.h"

#include <gmock/gmock.h>

namespace refhost {

namespace {

class NoteSavingContract : public Contract {};

constexpr const char* c_NotBegun = "ML040 Ukládání nebylo zahájeno. Uložte doklad znovu.";
constexpr const char* c_RefusedBefore = "ML041 Předchozí ukládání bylo odmítnuto. Uložte doklad znovu.";

Cells item(const std::string& name, const std::string& quantity, const std::string& orderLine = "") {
    Cells cells = {{"a_SKLADPOL", name}, {"a_MNOZSTVI", quantity}};
    if (!orderLine.empty()) {
        cells["a_DOBSID"] = orderLine;
    }
    return cells;
}

/// A whole save of one row.
std::string savedRow(Database& database, std::int64_t note, const Cells& cells, const NoteSources& sources = {}) {
    beginSave(database);
    EXPECT_EQ(stageNoteRow(database, cells), "");
    return saveNote(database, id(note), sources);
}

/// What the closing call refuses and the row that it names, counted from 0; "none" when it names none.
std::string refusedRow(Database& database) {
    try {
        database.Execute({"MELVARKEDITORDodakTempUloz", {{"a_DODKID", id(c_OpenNote)}}, false});
        return "accepted";
    } catch (const EDatabaseError& error) {
        return error.Code() + " row " + (error.Row() ? std::to_string(*error.Row()) : "none");
    }
}

std::string lines(Database& database, std::int64_t note) {
    return rows(database, "select PORADI, SKLADPOL, SKLAD, MNOZSTVI, DPH, DOBSID from SCREEN_DODAK_LINES_V "
                          "where _DOCID = " +
                              std::to_string(note) + " order by PORADI");
}

std::string orderLine(Database& database, int line) {
    return rows(database, "select number_text(DODANO), KOMPLETNI from DODOBJPOL where ID = " + std::to_string(line));
}

std::string sourcesOf(Database& database, std::int64_t note) {
    return rows(database, "select DODKIDZDROJ, DDOBIDZDROJ from DODAKZDROJ where DODKID = " + std::to_string(note) +
                              " order by ID");
}

TEST_P(NoteSavingContract, RowsWithAQuantityAreAppendedInTheirOrder) {
    const auto database = ownCompany();
    beginSave(*database);
    EXPECT_EQ(stageNoteRow(*database, item("Sirup", "2,5")), "");
    EXPECT_EQ(stageNoteRow(*database, item("Chléb", "")), "");       // left out
    EXPECT_EQ(stageNoteRow(*database, item("Chléb", "0,00")), "");   // left out
    EXPECT_EQ(stageNoteRow(*database, {}), "");                      // the editor's empty row
    EXPECT_EQ(stageNoteRow(*database, {{"a_SKLAD", "  "}}), "");     // blanks are no text
    EXPECT_EQ(stageNoteRow(*database, item("Čaj černý", "-3")), ""); // a return
    Cells row = item(" Sirup ", " 1.000 ");
    row["a_SKLAD"] = "Pobočka Čáslav";
    row["a_DPH"] = "21 %";
    EXPECT_EQ(stageNoteRow(*database, row), "");
    EXPECT_EQ(saveNote(*database, id(c_OpenNote)), "");

    // Behind the line that the note had. A row without a warehouse is of the note's, one without a rate has none.
    EXPECT_EQ(lines(*database, c_OpenNote), "1 | Čaj černý | Hlavní sklad | 1 | 12 % | -\n"
                                            "2 | Sirup | Hlavní sklad | 2,5 | - | -\n"
                                            "3 | Čaj černý | Hlavní sklad | -3 | - | -\n"
                                            "4 | Sirup | Pobočka Čáslav | 1 | 21 % | -");
}

TEST_P(NoteSavingContract, EveryCellOfARowIsKept) {
    const auto database = ownCompany();
    // 3 at 12.5 before the discount, all eight pairs as quantity times unit price.
    EXPECT_EQ(savedRow(*database, c_OpenNote,
                       {{"a_DOBSID", "101"},
                        {"a_SKLADPOL", "Mouka hladká"},
                        {"a_SKLAD", "Hlavní sklad"},
                        {"a_MNOZSTVI", "3"},
                        {"a_DPH", "12 %"},
                        {"a_SLEVA", "10.5"},
                        {"a_JEDNCENABSL", "1.1"},
                        {"a_JEDNDPHASL", "2.2"},
                        {"a_JEDNDPHBSL", "3.3"},
                        {"a_JEDNCENASSL", "4.4"},
                        {"a_JEDNCENAB", "5.5"},
                        {"a_JEDNDPHA", "6.6"},
                        {"a_JEDNDPHB", "7.7"},
                        {"a_JEDNCENAS", "8.800001"},
                        {"a_CENABSL", "3.3"},
                        {"a_DPHASL", "6.6"},
                        {"a_DPHBSL", "9.9"},
                        {"a_CENASSL", "13.2"},
                        {"a_CENAB", "16.5"},
                        {"a_DPHA", "19.8"},
                        {"a_DPHB", "23.1"},
                        {"a_CENAS", "26.4"},
                        {"a_TRVANLIVOST", "1. 9. 2026"}}),
              "");
    EXPECT_EQ(
        rows(*database, "select SKLADPOL, SKLAD, MNOZSTVI, JEDNOTKY, DPH, SLEVA, JEDNCENABSESLEVOU, JEDNDPHASESLEVOU, "
                        "JEDNDPHBSESLEVOU, JEDNCENASSESLEVOU, JEDNCENABBEZSLEVY, JEDNDPHABEZSLEVY, JEDNDPHBBEZSLEVY, "
                        "JEDNCENASBEZSLEVY, CENABSESLEVOU, DPHASESLEVOU, DPHBSESLEVOU, CENASSESLEVOU, CENABBEZSLEVY, "
                        "DPHABEZSLEVY, DPHBBEZSLEVY, CENASBEZSLEVY, TRVANLIVOST, DOBSID "
                        "from SCREEN_DODAK_LINES_V where _DOCID = 2 and PORADI = 2"),
        "Mouka hladká | Hlavní sklad | 3 | kg | 12 % | 10,5 | 1,1 | 2,2 | 3,3 | 4,4 | 5,5 | 6,6 | 7,7 | 8,800001 | "
        "3,30 | 6,60 | 9,90 | 13,20 | 16,50 | 19,80 | 23,10 | 26,40 | 1.9.2026 | 101");
}

TEST_P(NoteSavingContract, TheLongestNumbersAreKeptToTheLastDigit) {
    // 15 digits before the point and all decimals; the total is the quantity times 1, within the tolerance.
    const auto database = ownCompany();
    Cells row = item("Mouka hladká", "999999999999999.999999", "101");
    row["a_JEDNCENAB"] = "1";
    row["a_CENAB"] = "999999999999999.99";
    row["a_JEDNCENAS"] = "-123456789012345.654321";
    EXPECT_EQ(savedRow(*database, c_OpenNote, row), "");
    EXPECT_EQ(rows(*database, "select MNOZSTVI, CENABBEZSLEVY, JEDNCENASBEZSLEVY from SCREEN_DODAK_LINES_V "
                              "where _DOCID = 2 and PORADI = 2"),
              "999999999999999,999999 | 999999999999999,99 | -123456789012345,654321");
    EXPECT_EQ(orderLine(*database, 101), "1000000000000039,999999 | 1"); // 40 more
}

TEST_P(NoteSavingContract, NothingStagedIsASuccessThatChangesNothing) {
    const auto database = ownCompany();
    const std::string before = digest(*database);
    const NoteSources sources{id(c_NoteOfMill), id(c_Order)};
    beginSave(*database);
    EXPECT_EQ(saveNote(*database, id(c_OpenNote), sources), "");
    EXPECT_EQ(stageNoteRow(*database, {}), "");
    EXPECT_EQ(stageNoteRow(*database, item("Sirup", "0")), "");
    EXPECT_EQ(saveNote(*database, id(c_OpenNote), sources), "");
    EXPECT_EQ(digest(*database), before);
}

TEST_P(NoteSavingContract, ALineAddsToWhatHasComeOnItsOrderLine) {
    const auto database = ownCompany();
    // 4 sacks of 25 kg were ordered, 40 kg had come: 59.999999 leave a milligram, which then completes the line.
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Mouka hladká", "59.999999", "101")), "");
    EXPECT_EQ(orderLine(*database, 101), "99,999999 | 0");
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Mouka hladká", "0.000001", "101")), "");
    EXPECT_EQ(orderLine(*database, 101), "100 | 1");
}

TEST_P(NoteSavingContract, ANoteMayBringMoreThanWasOrderedAndTakeBack) {
    const auto database = ownCompany();
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Mouka hladká", "-10", "101")), "");
    EXPECT_EQ(orderLine(*database, 101), "30 | 0"); // 40 less 10
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Cukr krystal", "1000", "103")), "");
    EXPECT_EQ(orderLine(*database, 103), "1000 | 1"); // 7.5 were ordered
}

TEST_P(NoteSavingContract, AnOrderToTakeBackIsCompleteWhenThatMuchWentBack) {
    const auto database = ownCompany();
    database->runScript("update DODOBJPOL set MNOZSTVI = '-7.5' where ID = 103");
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Cukr krystal", "-5", "103")), "");
    EXPECT_EQ(orderLine(*database, 103), "-5 | 0"); // 2.5 are still to go
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Cukr krystal", "-2.5", "103")), "");
    EXPECT_EQ(orderLine(*database, 103), "-7,5 | 1");
}

TEST_P(NoteSavingContract, RowsOfOneSaveMayCompleteAnOrderLineTogether) {
    const auto database = ownCompany();
    beginSave(*database);
    for (const char* quantity : {"30", "30", "5"}) { // 60 kg were left: the third row comes after the last of them
        EXPECT_EQ(stageNoteRow(*database, item("Mouka hladká", quantity, "101")), "");
    }
    EXPECT_EQ(saveNote(*database, id(c_OpenNote)), "");
    EXPECT_EQ(orderLine(*database, 101), "105 | 1"); // 40 + 65
}

TEST_P(NoteSavingContract, AnOrderLineThatWasCompleteBeforeIsRefused) {
    const auto database = ownCompany();
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Cukr krystal", "7.5", "103")), "");
    const std::string before = digest(*database);
    beginSave(*database);
    EXPECT_EQ(stageNoteRow(*database, item("Sirup", "1")), "");
    EXPECT_EQ(stageNoteRow(*database, item("Cukr krystal", "-1", "103")), "");
    EXPECT_EQ(saveNote(*database, id(c_OpenNote)),
              "ML054 Položka „Cukr krystal“ objednávky „OBJ-1“ už je dodaná celá. Načtěte položky z objednávky znovu.");
    EXPECT_EQ(digest(*database), before);
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Mouka hrubá", "0", "102")), ""); // nothing comes on it
}

TEST_P(NoteSavingContract, ARateHasToBeValidOnTheNotesDay) {
    const auto database = ownCompany();
    const auto save = [&](const std::string& rate, const std::string& day, const std::string& quantity) {
        database->runScript("update DODAK set DATUM = '" + day + "' where ID = 2");
        Cells row = item("Sirup", quantity);
        row["a_DPH"] = rate;
        return savedRow(*database, c_OpenNote, row);
    };
    EXPECT_EQ(save("15 %", "2026-02-15", "1"),
              "ML053 Sazba DPH „15 %“ neplatí k datu 15.2.2026 dodacího listu. Vyberte platnou sazbu.");
    EXPECT_EQ(save("15 %", "2024-01-01", "1"),
              "ML053 Sazba DPH „15 %“ neplatí k datu 1.1.2024 dodacího listu. Vyberte platnou sazbu.");
    EXPECT_EQ(save("12 %", "2023-12-31", "1"),
              "ML053 Sazba DPH „12 %“ neplatí k datu 31.12.2023 dodacího listu. Vyberte platnou sazbu.");
    EXPECT_EQ(save("15 %", "2023-12-31", "1"), ""); // its last day
    EXPECT_EQ(save("12 %", "2024-01-01", "1"), ""); // its first
    EXPECT_EQ(save("15 %", "2026-02-15", "0"), ""); // no line comes of the row
    EXPECT_EQ(rows(*database, "select count(*) from DODAKPOL where DODKID = 2"), "3");
}

TEST_P(NoteSavingContract, SourcesAreRecordedOnce) {
    const auto database = ownCompany();
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Sirup", "1")), "");
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Sirup", "1"), {id(-1), id(0)}), "");
    EXPECT_EQ(sourcesOf(*database, c_OpenNote), "");
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Sirup", "1"), {{}, id(c_Order)}), "");
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Sirup", "1"), {id(c_NoteOfMill), {}}), "");
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Sirup", "1"), {id(c_NoteOfMill), id(c_Order)}), "");
    EXPECT_EQ(sourcesOf(*database, c_OpenNote), "- | 1\n1 | -");
}

TEST_P(NoteSavingContract, ASourceThatIsGoneIsRefused) {
    const auto database = ownCompany();
    const std::string before = digest(*database);
    const char* refusal = "ML055 Zdrojový doklad s identifikátorem 999 neexistuje. Zvolte zdroj znovu.";
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Sirup", "1"), {id(c_Missing), {}}), refusal);
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Sirup", "1"), {{}, id(c_Missing)}), refusal);
    EXPECT_EQ(digest(*database), before);
}

TEST_P(NoteSavingContract, ANoteThatWasClosedOrDeletedMeanwhileIsRefused) {
    const std::string url = ownCompanyUrl();
    const auto clerk = openAs(url, "novakova");
    const auto other = openAs(url, "dvorak");
    beginSave(*clerk);
    EXPECT_EQ(stageNoteRow(*clerk, item("Mouka hladká", "1", "101")), "");
    other->runScript("update DODAK set OTEVRENO = 0 where ID = 2");
    std::string before = digest(*other);
    EXPECT_EQ(saveNote(*clerk, id(c_OpenNote)),
              "ML011 Dodací list „DL-2“ je uzavřený. Otevřete jej, nebo vyberte jiný.");
    EXPECT_EQ(digest(*other), before);

    other->runScript("update DODAK set OTEVRENO = 1 where ID = 2");
    beginSave(*clerk);
    EXPECT_EQ(stageNoteRow(*clerk, item("Mouka hladká", "1", "101")), "");
    other->runScript("delete from DODAK where ID = 2");
    before = digest(*other);
    EXPECT_EQ(saveNote(*clerk, id(c_OpenNote)),
              "ML010 Dodací list s identifikátorem 2 neexistuje. Obnovte seznam a vyberte jiný.");
    EXPECT_EQ(digest(*other), before);
}

TEST_P(NoteSavingContract, AnOrderLineThatWasDeletedMeanwhileIsRefused) {
    const auto database = ownCompany();
    beginSave(*database);
    EXPECT_EQ(stageNoteRow(*database, item("Mouka hladká", "1", "101")), "");
    database->runScript("delete from DODOBJPOL where ID = 101");
    EXPECT_EQ(saveNote(*database, id(c_OpenNote)),
              "ML049 Řádek objednávky „101“ neexistuje. Načtěte položky z objednávky znovu.");
    EXPECT_EQ(lines(*database, c_OpenNote), "1 | Čaj černý | Hlavní sklad | 1 | 12 % | -");
}

TEST_P(NoteSavingContract, ARefusalOfTheClosingCallNamesTheRowAsItWasSent) {
    const auto database = ownCompany();
    Cells rated = item("Sirup", "1");
    rated["a_DPH"] = "15 %";
    beginSave(*database);
    EXPECT_EQ(stageNoteRow(*database, item("Sirup", "1")), "");
    EXPECT_EQ(stageNoteRow(*database, {}), "");                 // ignored, and counted all the same
    EXPECT_EQ(stageNoteRow(*database, item("Chléb", "0")), ""); // becomes no line
    EXPECT_EQ(stageNoteRow(*database, rated), "");
    EXPECT_EQ(stageNoteRow(*database, rated), "");
    EXPECT_EQ(refusedRow(*database), "ML053 row 3");

    // The next save counts from its own beginning, whether the last one was refused or succeeded.
    const auto save = [&](const std::vector<Cells>& cells) {
        beginSave(*database);
        for (const Cells& row : cells) {
            EXPECT_EQ(stageNoteRow(*database, row), "");
        }
        return refusedRow(*database);
    };
    EXPECT_EQ(save({item("Sirup", "1"), rated}), "ML053 row 1");
    EXPECT_EQ(save({item("Cukr krystal", "7.5", "103"), item("Mouka hladká", "60", "101")}), "accepted");
    // Both order lines are complete now: the row that came first is named, whichever order line was made first.
    EXPECT_EQ(save({{}, item("Cukr krystal", "1", "103"), item("Mouka hladká", "1", "101")}), "ML054 row 1");
}

TEST_P(NoteSavingContract, TheRowOfAnOrderLineThatIsGoneIsNamed) {
    const auto database = ownCompany();
    beginSave(*database);
    for (const Cells& row :
         {Cells{}, item("Sirup", "1"), item("Cukr krystal", "1", "103"), item("Mouka hladká", "1", "101")}) {
        EXPECT_EQ(stageNoteRow(*database, row), "");
    }
    database->runScript("delete from DODOBJPOL where ID in (101, 103)");
    EXPECT_EQ(refusedRow(*database), "ML049 row 2");

    beginSave(*database);
    EXPECT_EQ(stageNoteRow(*database, item("Sirup", "1")), "");
    database->runScript("update DODAK set OTEVRENO = 0 where ID = 2");
    EXPECT_EQ(refusedRow(*database), "ML011 row none");
}

TEST_P(NoteSavingContract, WhatWasDeletedAfterARowWasCheckedRefusesTheSave) {
    const auto database = ownCompany();
    database->runScript("insert into SKLADPOL (ID, NAZEV, SSP3ID, DPHID) values (9, 'Kmín', 5, 2)");
    beginSave(*database);
    EXPECT_EQ(stageNoteRow(*database, item("Kmín", "1")), "");
    database->runScript("delete from SKLADPOL where ID = 9");
    const std::string before = digest(*database);
    EXPECT_THAT(saveNote(*database, id(c_OpenNote)),
                testing::AllOf(testing::StartsWith("ML925 V databázi „"),
                               testing::EndsWith("“ už není něco, na co se změna odvolává. Načtěte data znovu.")));
    EXPECT_EQ(digest(*database), before);
}

TEST_P(NoteSavingContract, ASaveHasToBeBegun) {
    const std::string url = ownCompanyUrl();
    const auto database = openAs(url, "novakova");
    EXPECT_EQ(stageNoteRow(*database, item("Sirup", "1")), c_NotBegun);
    EXPECT_EQ(stageNoteRow(*openAs(url, "dvorak"), {}), c_NotBegun); // an empty row too
    EXPECT_EQ(saveNote(*openAs(url, "dvorak"), id(c_OpenNote)), c_NotBegun);
}

TEST_P(NoteSavingContract, AfterARefusalNothingGoesOnUntilTheNextBeginning) {
    const auto database = ownCompany();
    const std::string before = digest(*database);
    beginSave(*database);
    EXPECT_EQ(stageNoteRow(*database, item("Sirup", "1")), "");
    EXPECT_EQ(saveNote(*database, id(c_Missing)),
              "ML010 Dodací list s identifikátorem 999 neexistuje. Obnovte seznam a vyberte jiný.");
    EXPECT_EQ(stageNoteRow(*database, item("Sirup", "1")), c_RefusedBefore);
    EXPECT_EQ(stageNoteRow(*database, {}), c_RefusedBefore);
    EXPECT_EQ(saveNote(*database, id(c_OpenNote)), c_RefusedBefore);
    EXPECT_EQ(digest(*database), before);

    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Chléb", "1")), ""); // without what had been staged
    EXPECT_EQ(lines(*database, c_OpenNote), "1 | Čaj černý | Hlavní sklad | 1 | 12 % | -\n"
                                            "2 | Chléb | Hlavní sklad | 1 | - | -");
}

TEST_P(NoteSavingContract, ASuccessEmptiesTheRows) {
    const auto database = ownCompany();
    EXPECT_EQ(savedRow(*database, c_OpenNote, item("Sirup", "1")), "");
    EXPECT_EQ(saveNote(*database, id(c_OpenNote)), "");
    EXPECT_EQ(lines(*database, c_OpenNote), "1 | Čaj černý | Hlavní sklad | 1 | 12 % | -\n"
                                            "2 | Sirup | Hlavní sklad | 1 | - | -");
}

TEST_P(NoteSavingContract, EachSessionHasRowsOfItsOwn) {
    const std::string url = ownCompanyUrl();
    const auto first = openAs(url, "novakova");
    const auto second = openAs(url, "novakova"); // the same user at another desk
    beginSave(*first);
    EXPECT_EQ(stageNoteRow(*first, item("Sirup", "1")), "");
    beginSave(*second);
    EXPECT_EQ(stageNoteRow(*second, item("Chléb", "2")), "");
    EXPECT_EQ(saveNote(*second, id(c_OpenNote)), "");
    EXPECT_EQ(saveNote(*first, id(c_OpenNote)), "");
    EXPECT_EQ(lines(*first, c_OpenNote), "1 | Čaj černý | Hlavní sklad | 1 | 12 % | -\n"
                                         "2 | Chléb | Hlavní sklad | 2 | - | -\n"
                                         "3 | Sirup | Hlavní sklad | 1 | - | -");
}

INSTANTIATE_TEST_SUITE_P(Engines, NoteSavingContract, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace
} // namespace refhost
