#include "tests/database/ContractCompany.h"
#include "tests/database/Staging.h"

#include <regex>

namespace refhost {

namespace {

class OrderSavingContract : public Contract {};

/// A row of flour in its main unit.
Cells flour(const std::string& quantity, const std::string& supplier = "") {
    Cells cells = {{"a_SKLADPOL", "Mouka hladká"}, {"a_SKPLID", "11"}, {"a_JEDNOTKY", "kg"}, {"a_MNOZSTVI", quantity}};
    if (!supplier.empty()) {
        cells["a_DODAVATEL"] = supplier;
    }
    return cells;
}

Cells with(Cells cells, const Cells& changes) {
    for (const auto& [name, text] : changes) {
        cells[name] = text;
    }
    return cells;
}

std::string savedRow(Database& database, std::int64_t document, const Cells& cells, const OrderSources& sources = {}) {
    beginSave(database);
    EXPECT_EQ(stageOrderRow(database, cells), "");
    return saveOrder(database, id(document), sources);
}

std::string orderLines(Database& database, std::int64_t order) {
    return rows(database, "select PORADI, SKLADPOL, SKLAD, MNOZSTVI, JEDNOTKY, DODANO, DODAVATEL, POPIS, KOMENTAR from "
                          "SCREEN_DODOBJ_LINES_V where _DOCID = " +
                              std::to_string(order) + " order by PORADI");
}

std::string templateLines(Database& database, std::int64_t document) {
    return rows(database, "select PORADI, SKLADPOL, SKLAD, MNOZSTVI, JEDNOTKY, DODAVATEL from "
                          "SCREEN_DODOBJVZOR_LINES_V where _DOCID = " +
                              std::to_string(document) + " order by PORADI");
}

/// The orders that were made after those of the company.
std::string newOrders(Database& database) {
    return rows(database, "select _ID, CISLO, OBJEDNANIDC, DODAVATEL, SKLAD, STAV, POCETPOLOZEK from SCREEN_DODOBJ_V "
                          "where _ID > 10 order by _ID");
}

std::string sources(Database& database) {
    return rows(database, "select DDOBID, DODKIDZDROJ, DDOBIDZDROJ from DODOBJZDROJ order by DDOBID, DODKIDZDROJ, "
                          "DDOBIDZDROJ");
}

TEST_P(OrderSavingContract, ARowThatIsWrongIsRefusedInWords) {
    struct Refusal {
        Cells Row;
        const char* Sentence;
    };
    const Refusal refusals[] = {
        {{{"a_MNOZSTVI", "1"}}, "ML042 Řádek nemá skladovou položku. Doplňte ji, nebo řádek vyprázdněte."},
        {{{"a_KOMENTAR", "spěchá"}}, "ML042 Řádek nemá skladovou položku. Doplňte ji, nebo řádek vyprázdněte."},
        {with(flour("1"), {{"a_SKLADPOL", "Mouka"}}), "ML043 Skladová položka „Mouka“ neexistuje. Vyberte jinou."},
        {with(flour("1"), {{"a_SKLAD", "Sklep"}}), "ML044 Sklad „Sklep“ neexistuje. Vyberte sklad ze seznamu."},
        {flour("1", "Pekárna"), "ML045 Dodavatel „Pekárna“ neexistuje. Vyberte dodavatele ze seznamu."},
        {flour("tři"), "ML001 Množství „tři“ není číslo. Použijte jen číslice a nejvýše jednu desetinnou čárku."},
        {with(flour(""), {{"a_MNOZSTVIV1", "1e3"}}), "ML001 Množství ve vedlejší jednotce 1 „1e3“ není číslo. Použijte "
                                                     "jen číslice a nejvýše jednu desetinnou čárku."},
        {with(flour(""), {{"a_MNOZSTVIV2", "0,1234567"}}),
         "ML006 Množství ve vedlejší jednotce 2 „0,1234567“ má příliš mnoho desetinných míst. Zapište nejvýše 6."},
        {flour("1234567890123456"),
         "ML005 Množství „1234567890123456“ je příliš dlouhé číslo. Zapište nejvýše 15 číslic "
         "před desetinnou čárkou a 50 za ní."},
        // Flour has all three units, but the row does not name the third; coarse flour has none to name.
        {with(flour(""), {{"a_MNOZSTVIV2", "1"}}), "ML048 Množství položky „Mouka hladká“ nemá jednotku. Množství "
                                                   "vymažte, nebo vyberte položku, která tu jednotku "
                                                   "má."},
        {with(flour("1"), {{"a_SKPLID", "21"}}), // the kilogram of coarse flour
         "ML047 Jednotka „kg“ nepatří k položce „Mouka hladká“. Načtěte řádek znovu."},
        {with(flour("1"), {{"a_JEDNOTKY", "pytel"}}), // the name is not that of the id
         "ML047 Jednotka „pytel“ nepatří k položce „Mouka hladká“. Načtěte řádek znovu."},
        {{{"a_SKLADPOL", "Chléb"}, {"a_SKPLID", "kus"}},
         "ML047 Jednotka „kus“ nepatří k položce „Chléb“. Načtěte řádek znovu."},
        {{{"a_SKLADPOL", "Sirup"}, {"a_SKPLID", "71 malá"}, {"a_MNOZSTVI", "1"}, {"a_JEDNOTKY", "lahev"}},
         "ML047 Jednotka „lahev“ nepatří k položce „Sirup“. Načtěte řádek znovu."},
        {{{"a_SKLADPOL", "Chléb"}, {"a_JEDNOTKYV1", "bedna"}}, // without a quantity too
         "ML047 Jednotka „bedna“ nepatří k položce „Chléb“. Načtěte řádek znovu."},
        {with(flour("1"),
              {{"a_SKPLID", "21"}, {"a_MNOZSTVIV2", "1"}}), // that a unit is missing comes before a wrong one
         "ML048 Množství položky „Mouka hladká“ nemá jednotku. Množství vymažte, nebo vyberte položku, která tu "
         "jednotku "
         "má."},
        {with(flour("1"), {{"a_SKPLID", "21"}, {"a_MNOZSTVIV2", "dva"}}), // and both after the numbers
         "ML001 Množství ve vedlejší jednotce 2 „dva“ není číslo. Použijte jen číslice a nejvýše jednu desetinnou "
         "čárku."},
        {{{"a_JEDNOTKYV1", "bedna"}}, "ML042 Řádek nemá skladovou položku. Doplňte ji, nebo řádek vyprázdněte."},
        {with(flour("tři", "Pekárna"), {{"a_SKLAD", "Sklep"}}), // in the order item, warehouse, supplier, numbers
         "ML044 Sklad „Sklep“ neexistuje. Vyberte sklad ze seznamu."},
    };
    const auto database = ownCompany();
    database->runScript("update SKPL set NAZEV = 'malá lahev' where ID = 71"); // a name with a blank
    const std::string before = digest(*database);
    for (const Refusal& refusal : refusals) {
        beginSave(*database);
        EXPECT_EQ(stageOrderRow(*database, refusal.Row), refusal.Sentence);
        EXPECT_EQ(saveOrder(*database, id(c_Order)), "ML041 Předchozí ukládání bylo odmítnuto. Uložte doklad znovu.");
    }
    EXPECT_EQ(digest(*database), before);
}

TEST_P(OrderSavingContract, AClosingCallThatIsWrongIsRefusedInWords) {
    const auto database = ownCompany();
    const std::string before = digest(*database);
    EXPECT_EQ(savedRow(*database, c_Missing, flour("1")),
              "ML012 Objednávka ani vzor objednávky s identifikátorem 999 neexistuje. Obnovte seznam a vyberte jiný "
              "doklad.");
    EXPECT_EQ(savedRow(*database, c_ClosedOrder, flour("1")),
              "ML013 Objednávka „OBJ-6“ je uzavřená. Otevřete ji, nebo vyberte jinou.");
    EXPECT_EQ(savedRow(*database, c_ClosedTemplate, flour("1")),
              "ML013 Vzor objednávky „VZ-2“ je uzavřený. Otevřete jej, nebo vyberte jiný.");
    const char* source = "ML055 Zdrojový doklad s identifikátorem 999 neexistuje. Zvolte zdroj znovu.";
    EXPECT_EQ(savedRow(*database, c_Order, flour("1"), {.Order = id(c_Missing)}), source);
    EXPECT_EQ(savedRow(*database, c_Order, flour("1"), {.Template = id(c_Missing)}), source);
    EXPECT_EQ(savedRow(*database, c_Order, flour("1"), {.Note = id(c_Missing)}), source);
    EXPECT_EQ(stageOrderRow(*database, flour("1")), "ML041 Předchozí ukládání bylo odmítnuto. Uložte doklad znovu.");
    EXPECT_EQ(digest(*database), before);
}

TEST_P(OrderSavingContract, ASaveHasToBeBegun) {
    const std::string url = ownCompanyUrl();
    const char* notBegun = "ML040 Ukládání nebylo zahájeno. Uložte doklad znovu.";
    EXPECT_EQ(stageOrderRow(*openAs(url, "novakova"), {}), notBegun);
    EXPECT_EQ(saveOrder(*openAs(url, "novakova"), id(c_Order)), notBegun);
}

TEST_P(OrderSavingContract, EachQuantityBecomesALineInItsUnit) {
    const auto database = ownCompany();
    beginSave(*database);
    EXPECT_EQ(stageOrderRow(*database, with(flour("2,5"), {{"a_SKPLIDV1", "12"},
                                                           {"a_JEDNOTKYV1", "pytel"},
                                                           {"a_MNOZSTVIV1", "3"},
                                                           {"a_SKPLIDV2", "13"},
                                                           {"a_MNOZSTVIV2", "-1"},
                                                           {"a_POPIS", " hladká "},
                                                           {"a_KOMENTAR", "rychle"},
                                                           {"a_SKLAD", "Pobočka Čáslav"}})),
              "");
    EXPECT_EQ(stageOrderRow(*database, {}), "");
    EXPECT_EQ(stageOrderRow(*database, with(flour("0"), {{"a_SKPLIDV1", "12"}, {"a_MNOZSTVIV1", "0.50"}})), "");
    EXPECT_EQ(stageOrderRow(*database, {{"a_SKLADPOL", "Chléb"}, {"a_MNOZSTVIV1", "0"}}), ""); // 0 needs no unit
    EXPECT_EQ(saveOrder(*database, id(c_FreeOrder)), "");

    EXPECT_EQ(orderLines(*database, c_FreeOrder),
              "1 | Mouka hladká | Pobočka Čáslav | 2,5 | kg | 0 | - | hladká | rychle\n"
              "2 | Mouka hladká | Pobočka Čáslav | 3 | pytel | 0 | - | hladká | rychle\n"
              "3 | Mouka hladká | Pobočka Čáslav | -1 | paleta | 0 | - | hladká | rychle\n"
              "4 | Mouka hladká | Hlavní sklad | 0,5 | pytel | 0 | - | - | -");
    EXPECT_EQ(newOrders(*database), "");
}

TEST_P(OrderSavingContract, LinesAreAppendedBehindThoseOfTheOrder) {
    const auto database = ownCompany();
    EXPECT_EQ(savedRow(*database, c_OrderOfBranch, flour("7")), "");
    EXPECT_EQ(orderLines(*database, c_OrderOfBranch),
              "1 | Mouka hladká | Pobočka Čáslav | 3 | kg | 0 | Mlýn Lípa | - | -\n"
              "2 | Cukr krystal | Pobočka Čáslav | 2 | kg | 0 | Mlýn Lípa | - | -\n"
              "3 | Mouka hladká | Pobočka Čáslav | 7 | kg | 0 | Mlýn Lípa | - | -");
}

TEST_P(OrderSavingContract, NothingStagedIsASuccessThatChangesNothing) {
    const auto database = ownCompany();
    const std::string before = digest(*database);
    const OrderSources all{id(c_EarlierOrder), id(c_Template), id(c_NoteOfMill)};
    beginSave(*database);
    EXPECT_EQ(saveOrder(*database, id(c_Order), all), "");
    EXPECT_EQ(stageOrderRow(*database, flour("0", "Nápoje Švec")), "");
    EXPECT_EQ(stageOrderRow(*database, {}), "");
    EXPECT_EQ(saveOrder(*database, id(c_FreeOrder), all), "");
    EXPECT_EQ(digest(*database), before);
}

TEST_P(OrderSavingContract, RowsOfOtherSuppliersGoIntoNewOrdersOfTheirs) {
    const auto database = ownCompany();
    beginSave(*database);
    EXPECT_EQ(stageOrderRow(*database, flour("1", "Mlýn Lípa")), "");
    EXPECT_EQ(stageOrderRow(*database, flour("2", "Čajovna Říp")), "");
    EXPECT_EQ(stageOrderRow(*database, with(flour("3", "Nápoje Švec"), {{"a_SKLAD", "Pobočka Čáslav"}})), "");
    EXPECT_EQ(stageOrderRow(*database, flour("4")), ""); // nobody's goods stay with the order
    EXPECT_EQ(stageOrderRow(*database, flour("5", "Čajovna Říp")), "");
    EXPECT_EQ(saveOrder(*database, id(c_OrderOfBranch), {.Template = id(c_Template), .Note = id(c_NoteOfMill)}), "");

    EXPECT_EQ(orderLines(*database, c_OrderOfBranch),
              "1 | Mouka hladká | Pobočka Čáslav | 3 | kg | 0 | Mlýn Lípa | - | -\n"
              "2 | Cukr krystal | Pobočka Čáslav | 2 | kg | 0 | Mlýn Lípa | - | -\n"
              "3 | Mouka hladká | Pobočka Čáslav | 1 | kg | 0 | Mlýn Lípa | - | -\n"
              "4 | Mouka hladká | Pobočka Čáslav | 4 | kg | 0 | Mlýn Lípa | - | -");
    // The supplier whose row came first has the lower id; both orders have the moment and warehouse of OBJ-4.
    EXPECT_EQ(newOrders(*database),
              "11 | OV2026-000011 | 10.4.2026 10:00:00 | Čajovna Říp | Pobočka Čáslav | otevřený | 2\n"
              "12 | OV2026-000012 | 10.4.2026 10:00:00 | Nápoje Švec | Pobočka Čáslav | otevřený | 1");
    EXPECT_EQ(orderLines(*database, 11), "1 | Mouka hladká | Pobočka Čáslav | 2 | kg | 0 | Čajovna Říp | - | -\n"
                                         "2 | Mouka hladká | Pobočka Čáslav | 5 | kg | 0 | Čajovna Říp | - | -");
    EXPECT_EQ(orderLines(*database, 12), "1 | Mouka hladká | Pobočka Čáslav | 3 | kg | 0 | Nápoje Švec | - | -");
    // Each of the three orders came from the template and the note.
    EXPECT_EQ(rows(*database, "select DDOBID, count(DODKIDZDROJ), count(DDOBIDZDROJ) from DODOBJZDROJ "
                              "where coalesce(DODKIDZDROJ, 1) = 1 and coalesce(DDOBIDZDROJ, 7) = 7 "
                              "group by DDOBID order by DDOBID"),
              "4 | 1 | 1\n11 | 1 | 1\n12 | 1 | 1");
}

TEST_P(OrderSavingContract, ANumberThatSomebodyGaveOutElsewhereIsPassedOverForTheNextFreeOne) {
    struct {
        std::vector<std::string> taken;
        const char* given;
    } const cases[] = {
        {{"OV2026-000011"}, "11 OV2026-000012, 12 OV2026-000013"},
        {{"OV2026-000012"}, "11 OV2026-000011, 12 OV2026-000013"},
        {{"OV2026-000011", "OV2026-000012"}, "11 OV2026-000013, 12 OV2026-000014"},
        {{"OV2026-000011", "OV2026-000013"}, "11 OV2026-000012, 12 OV2026-000014"},
        {{"OV2025-000011"}, "11 OV2026-000011, 12 OV2026-000012"}, // of another year
    };
    const std::int64_t others[] = {c_ClosedOrder, c_EarlierOrder};
    for (const auto& row : cases) {
        const auto database = ownCompany();
        for (std::size_t at = 0; at < row.taken.size(); ++at) {
            database->runScript("update DODOBJEDNAVKA set CISLO = '" + row.taken[at] +
                                "' where ID = " + std::to_string(others[at]));
        }
        beginSave(*database);
        EXPECT_EQ(stageOrderRow(*database, flour("2", "Čajovna Říp")), "");
        EXPECT_EQ(stageOrderRow(*database, flour("3", "Nápoje Švec")), "");
        EXPECT_EQ(saveOrder(*database, id(c_OrderOfBranch)), "");
        std::string given = rows(*database, "select _ID, CISLO from SCREEN_DODOBJ_V where _ID > 10 order by _ID");
        given = std::regex_replace(std::regex_replace(given, std::regex(" \\| "), " "), std::regex("\n"), ", ");
        EXPECT_EQ(given, row.given) << row.taken.front();
    }
}

TEST_P(OrderSavingContract, AnIdThatSomebodyChoseElsewhereIsPassedOverForTheNextOne) {
    struct {
        const char* chosen;
        const char* given;
    } const cases[] = {
        {"11", "12 | OV2026-000012\n13 | OV2026-000013"}, // the very next one
        {"12", "13 | OV2026-000013\n14 | OV2026-000014"}, // one of those that the save needs
        {"40", "41 | OV2026-000041\n42 | OV2026-000042"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.chosen);
        const auto database = ownCompany();
        database->runScript(std::string("insert into DODOBJEDNAVKA (ID, VZOR, CISLO, OBJEDNANIDC, SKLDID) values (") +
                            row.chosen + ", 0, 'RUČNÍ', '2026-04-11 10:00:00', 1)");
        beginSave(*database);
        EXPECT_EQ(stageOrderRow(*database, flour("2", "Čajovna Říp")), "");
        EXPECT_EQ(stageOrderRow(*database, flour("3", "Nápoje Švec")), "");
        EXPECT_EQ(saveOrder(*database, id(c_OrderOfBranch)), "");
        EXPECT_EQ(rows(*database, std::string("select _ID, CISLO from SCREEN_DODOBJ_V where _ID > 10 and _ID <> ") +
                                      row.chosen + " order by _ID"),
                  row.given);
    }
}

TEST_P(OrderSavingContract, ATemplatesNumberIsNotAnOrders) {
    const auto database = ownCompany();
    database->runScript("update DODOBJEDNAVKA set CISLO = 'OV2026-000011' where ID = " + std::to_string(c_Template));
    beginSave(*database);
    EXPECT_EQ(stageOrderRow(*database, flour("2", "Čajovna Říp")), "");
    EXPECT_EQ(saveOrder(*database, id(c_OrderOfBranch)), "");
    EXPECT_EQ(rows(*database, "select _ID, CISLO from SCREEN_DODOBJ_V where _ID > 10"), "11 | OV2026-000011");
}

TEST_P(OrderSavingContract, AnOrderWithoutASupplierTakesThatOfTheFirstRow) {
    const auto database = ownCompany();
    beginSave(*database);
    EXPECT_EQ(stageOrderRow(*database, flour("1")), "");
    EXPECT_EQ(stageOrderRow(*database, flour("0", "Mlýn Lípa")), ""); // no line comes of it
    EXPECT_EQ(stageOrderRow(*database, flour("2", "Nápoje Švec")), "");
    EXPECT_EQ(stageOrderRow(*database, flour("3", "Mlýn Lípa")), "");
    EXPECT_EQ(saveOrder(*database, id(c_FreeOrder)), "");

    EXPECT_EQ(orderLines(*database, c_FreeOrder), "1 | Mouka hladká | Hlavní sklad | 1 | kg | 0 | Nápoje Švec | - | -\n"
                                                  "2 | Mouka hladká | Hlavní sklad | 2 | kg | 0 | Nápoje Švec | - | -");
    EXPECT_EQ(newOrders(*database),
              "11 | OV2026-000011 | 12.2.2026 10:00:00 | Mlýn Lípa | Hlavní sklad | otevřený | 1");
    EXPECT_EQ(sources(*database), "");
}

TEST_P(OrderSavingContract, ATemplateKeepsAllRowsWithTheirSuppliers) {
    const auto database = ownCompany();
    beginSave(*database);
    EXPECT_EQ(stageOrderRow(*database, flour("1", "Čajovna Říp")), "");
    EXPECT_EQ(stageOrderRow(*database, flour("2")), "");
    EXPECT_EQ(stageOrderRow(*database, flour("3", "Mlýn Lípa")), "");
    EXPECT_EQ(saveOrder(*database, id(c_Namesake), {.Order = id(c_Order)}), "");

    EXPECT_EQ(templateLines(*database, c_Namesake), "1 | Mouka hladká | Hlavní sklad | 1 | kg | Čajovna Říp\n"
                                                    "2 | Mouka hladká | Hlavní sklad | 2 | kg | -\n"
                                                    "3 | Mouka hladká | Hlavní sklad | 3 | kg | Mlýn Lípa");
    EXPECT_EQ(newOrders(*database), "");
    EXPECT_EQ(rows(*database, "select DODAVATEL from SCREEN_DODOBJVZOR_V where _ID = 9"), "-"); // it takes none itself
    EXPECT_EQ(sources(*database), "9 | - | 1");
}

TEST_P(OrderSavingContract, SourcesAreRecordedOnce) {
    const auto database = ownCompany();
    EXPECT_EQ(savedRow(*database, c_FreeOrder, flour("1"), {.Order = id(-1), .Template = id(0)}), "");
    EXPECT_EQ(sources(*database), "");
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(savedRow(*database, c_FreeOrder, flour("1"), {.Order = id(c_Order), .Note = id(c_OpenNote)}), "");
    }
    EXPECT_EQ(savedRow(*database, c_FreeOrder, flour("1"), {.Template = id(c_Template)}), "");
    EXPECT_EQ(rows(*database, "select count(*), sum(DODKIDZDROJ), sum(DDOBIDZDROJ) from DODOBJZDROJ where DDOBID = 5"),
              "3 | 2 | 8"); // note 2, order 1 and template 7
}

TEST_P(OrderSavingContract, AnOrderThatWasClosedOrDeletedMeanwhileIsRefused) {
    const std::string url = ownCompanyUrl();
    const auto clerk = openAs(url, "novakova");
    const auto other = openAs(url, "dvorak");
    beginSave(*clerk);
    EXPECT_EQ(stageOrderRow(*clerk, flour("1", "Nápoje Švec")), "");
    other->runScript("update DODOBJEDNAVKA set OTEVRENO = 0 where ID = 5");
    std::string before = digest(*other);
    EXPECT_EQ(saveOrder(*clerk, id(c_FreeOrder)),
              "ML013 Objednávka „OBJ-5“ je uzavřená. Otevřete ji, nebo vyberte jinou.");
    EXPECT_EQ(digest(*other), before);

    beginSave(*clerk);
    EXPECT_EQ(stageOrderRow(*clerk, flour("1", "Nápoje Švec")), "");
    other->runScript("delete from DODOBJEDNAVKA where ID = 5");
    before = digest(*other);
    EXPECT_EQ(saveOrder(*clerk, id(c_FreeOrder)).substr(0, 5), "ML012");
    EXPECT_EQ(digest(*other), before);
}

TEST_P(OrderSavingContract, ASuccessEmptiesTheRows) {
    const auto database = ownCompany();
    EXPECT_EQ(savedRow(*database, c_FreeOrder, flour("1")), "");
    EXPECT_EQ(saveOrder(*database, id(c_FreeOrder)), "");
    EXPECT_EQ(orderLines(*database, c_FreeOrder), "1 | Mouka hladká | Hlavní sklad | 1 | kg | 0 | - | - | -");
}

TEST_P(OrderSavingContract, ASuccessEmptiesTheSessionsRowsOfBothKindsOfDocument) {
    const auto database = ownCompany();
    const Cells tea = {{"a_SKLADPOL", "Čaj černý"}, {"a_MNOZSTVI", "1"}};

    beginSave(*database);
    EXPECT_EQ(stageNoteRow(*database, tea), "");
    EXPECT_EQ(stageOrderRow(*database, flour("1")), "");
    EXPECT_EQ(saveOrder(*database, id(c_FreeOrder)), "");
    const std::string afterOrder = digest(*database);
    EXPECT_EQ(saveNote(*database, id(c_OpenNote)), "");
    EXPECT_EQ(digest(*database), afterOrder);

    beginSave(*database);
    EXPECT_EQ(stageNoteRow(*database, tea), "");
    EXPECT_EQ(stageOrderRow(*database, flour("1")), "");
    EXPECT_EQ(saveNote(*database, id(c_OpenNote)), "");
    const std::string afterNote = digest(*database);
    EXPECT_EQ(saveOrder(*database, id(c_FreeOrder)), "");
    EXPECT_EQ(digest(*database), afterNote);
    EXPECT_NE(afterNote, afterOrder);
}

TEST_P(OrderSavingContract, ASessionKnowsTheOrdersThatItsOwnSavesHaveMadeAndNoOthers) {
    const std::string url = ownCompanyUrl();
    const auto clerk = openAs(url, "novakova");
    const auto other = openAs(url, "dvorak");
    const auto made = [](Database& session) {
        return rows(session, "select _ID from SCREEN_DODOBJ_CREATED_V order by _ID");
    };
    EXPECT_EQ(made(*clerk), "") << "before any save of the session";

    EXPECT_EQ(savedRow(*other, c_Order, flour("1", "Nápoje Švec")), "");
    EXPECT_EQ(savedRow(*clerk, c_Order, flour("1", "Čajovna Říp")), "");
    EXPECT_EQ(made(*other), "11");
    EXPECT_EQ(made(*clerk), "12");

    EXPECT_EQ(savedRow(*clerk, c_Order, flour("2")), "") << "a save that makes none";
    EXPECT_NE(savedRow(*clerk, c_ClosedOrder, flour("1", "Nápoje Švec")), "") << "a refused one";
    EXPECT_EQ(made(*clerk), "12");
    EXPECT_EQ(savedRow(*clerk, c_Order, flour("1", "Nápoje Švec")), "");
    EXPECT_EQ(made(*clerk), "12\n13");
}

INSTANTIATE_TEST_SUITE_P(Engines, OrderSavingContract, testing::ValuesIn(c_BothEngines), engineOf);

} // namespace
} // namespace refhost
