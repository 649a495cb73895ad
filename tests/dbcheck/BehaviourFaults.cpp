#include "tests/dbcheck/BehaviourFaults.h"

#include "refhost/database/EmbeddedSql.h"

#include <gtest/gtest.h>
#include <ostream>

namespace refhost {

namespace {

constexpr Engine c_File = Engine::SQLite;
constexpr Engine c_Server = Engine::PostgreSQL;

constexpr const char* c_Close = "MELVARKEDITORDodakTempUloz";
constexpr const char* c_Insert = "MELVARKEDITORDodakInsertToTemp";
constexpr const char* c_CheckMaster = "MELVARKEDITORDodakCheckMaster";
constexpr const char* c_ObnovData = "MELVARKEDITORDodakObnovData";
constexpr const char* c_Ask = "MELVARKEDITORUlozeniOver";
constexpr const char* c_Placement = "MELVARKEDITORNASTAVENIUlozNastaveniOkna";

const std::string c_Doubled = "Opakované volání MELVARKEDITORDodakTempUloz uložilo řádky znovu (1; 2,5; 3). Po úspěchu "
                              "je vyprázdněte.";
const std::string c_Reversed = "Po volání MELVARKEDITORDodakTempUloz přibyly řádky s množstvím „3; 2,5; 1“ místo "
                               "„1; 2,5; 3“. Uložte je všechny a v pořadí.";
const std::string c_MissingOpened =
    "Procedura MELVARKEDITORDodakCheckMaster přijala doklad, který není. Odmítněte jej.";
const std::string c_MissingSaved = "Procedura MELVARKEDITORDodakTempUloz přijala doklad, který není. Odmítněte jej.";
const std::string c_Recovered = "Procedura MELVARKEDITORDodakObnovData dala v a_OBNOVDATA hodnotu „1“ místo „0“. "
                                "Opravte ji.";
const std::string c_NotDeleted = "Nastavení zůstalo v seznamu i po volání MELVARKEDITORNASTAVENISmaz. Smažte je.";
const std::string c_OtherPlacement = "Procedura MELVARKEDITORNASTAVENINactiNastaveniOkna dala v DATA hodnotu „<jiné/>“ "
                                     "místo „<a b=\"Příliš žluťoučký\">'„kůň“ &amp;\n\tpěl</a>“. Opravte ji.";
const std::string c_OrderDoubled = "Opakované volání MELVARKEDITORDodObjTempUloz uložilo řádky znovu (1; 2,5; 3). Po "
                                   "úspěchu je vyprázdněte.";
const std::string c_ClosedAfterRefusal = "Procedura MELVARKEDITORDodakTempUloz uzavřela ukládání, jehož řádek byl "
                                         "odmítnut. Odmítněte je.";
const std::string c_InPart = "Procedura MELVARKEDITORDodakTempUloz uložila část odmítnutého ukládání (4). Uložte vše, "
                             "nebo nic.";

const std::string c_Unknown = "Procedura MELVARKEDITORUlozeniOver dala v a_ULOZENO hodnotu „0“ místo „1“. Opravte ji.";
const std::string c_TakenUp = "Procedura MELVARKEDITORDodakObnovData dala v a_OBNOVDATA hodnotu „1“ místo „0“. Opravte "
                              "ji.";
const std::string c_GivenUp = "Procedura MELVARKEDITORDodakTempUloz uzavřela ukládání, které bylo předtím vzdáno. "
                              "Odmítněte je.";

std::vector<BehaviourFault> fileFaults() {
    return {
        {"AnIdentityIsNotWrittenDown",
         c_File,
         {{c_Close, "from SAVE_IDENTITY where IDENTITA is not null", "from SAVE_IDENTITY where false"}},
         "DODAK",
         {c_Unknown, c_TakenUp}},
        {"ASaveThatWasGivenUpComes",
         c_File,
         {{c_Ask,
           "insert into ULOZENI (IDENTITA, UZIVATEL) values (:a_ULOZENI, current_user_name()) on conflict do "
           "nothing;",
           ""}},
         "DODAK",
         {c_GivenUp}},
        {"ClosingTwiceDoubles", c_File, {{c_Close, "delete from NOTE_STAGED;\n", ""}}, "DODAK", {c_Doubled}},
        {"LinesComeInReverse",
         c_File,
         {{c_Close, "row_number() over (order by l.PLACE)", "row_number() over (order by l.PLACE desc)"}},
         "DODAK",
         {c_Reversed}},
        {"ANewSaveKeepsTheRowsOfTheLast",
         c_File,
         {{"MELVARKEDITORResetTemp", "delete from ORDER_STAGED;\n", ""}},
         "DODOBJ",
         {"Procedura MELVARKEDITORDodObjTempUloz převzala i řádky předchozího ukládání (4). Nové ukládání je musí "
          "vyprázdnit.",
          "Procedura MELVARKEDITORDodObjTempUloz uložila po práci jiné relace „4; 4; 4“ místo „4“. Každá relace má své "
          "řádky."}},
        {"AMissingNoteIsOpened",
         c_File,
         {{c_CheckMaster, "select refuse_closed_note(:a_DODKID) as refusal;",
           "select refuse_closed_note(:a_DODKID) as refusal where :a_DODKID < 1000;"}},
         "DODAK",
         {c_MissingOpened}},
        {"AMissingNoteIsSavedInto",
         c_File,
         {{c_Close, "select refuse_closed_note(:a_DODKID) as refusal;", ""}},
         "DODAK",
         {c_MissingSaved}},
        {"WorkOnAMissingNoteIsTakenUp",
         c_File,
         {{c_ObnovData, "exists (select 1 from DODAK where ID = :a_DODKID and OTEVRENO = 1)",
           "coalesce(:a_DODKID, 1) > 0"}},
         "DODAK",
         {c_Recovered}},
        {"ARefusedRowLeavesTheSaveOpen",
         c_File,
         {{c_Insert, "-- after failure: staging refused\n", ""}},
         "DODAK",
         {c_ClosedAfterRefusal, c_InPart}},
        {"ARowIsTakenThoughNoSaveWasBegun",
         c_File,
         {{c_Insert, "select refuse_closed_staging() as refusal;", ""},
          {c_Close, "select refuse_closed_staging() as refusal;", ""}},
         "DODAK",
         {"Procedura MELVARKEDITORDodakInsertToTemp přijala řádek, aniž bylo ukládání zahájeno. Odmítněte jej.",
          "Procedura MELVARKEDITORDodakTempUloz převzala řádky ukládání, které nikdo nezahájil (1). Odmítněte je.",
          c_ClosedAfterRefusal, c_InPart}},
        {"ASettingIsNotDeleted",
         c_File,
         {{"MELVARKEDITORNASTAVENISmaz", "where ID = :a_ID", "where ID = -:a_ID"}},
         "DODAK",
         {c_NotDeleted}},
        {"APlacementIsNotKept",
         c_File,
         {{c_Placement, "select ID, :a_TYPEDITACE, :a_DATA from", "select ID, :a_TYPEDITACE, '<jiné/>' from"}},
         "DODAK",
         {c_OtherPlacement}},
        {"AFlagIsAWord",
         c_File,
         {{"MELVARKEDITORNASTAVENIGetInfo", "select NAZEV, KOMENTAR, SDILENE from",
           "select NAZEV, KOMENTAR, 'ne' as SDILENE from"}},
         "DODAK",
         {"Sloupec SDILENE ve výsledku procedury MELVARKEDITORNASTAVENIGetInfo má typ text. Vracejte integer.",
          "Procedura MELVARKEDITORNASTAVENIGetInfo dala v SDILENE hodnotu „ne“ místo „1“. Opravte ji."}},
        {"ClosingAnOrderTwiceDoubles",
         c_File,
         {{"MELVARKEDITORDodObjTempUloz", "delete from ORDER_STAGED;\n", ""}},
         "DODOBJ",
         {c_OrderDoubled}},
    };
}

std::vector<BehaviourFault> serverFaults() {
    return {
        {"ClosingTwiceDoubles",
         c_Server,
         {{c_Close, "truncate pg_temp.NOTE_STAGED, pg_temp.ORDER_STAGED;", ""}},
         "DODAK",
         {c_Doubled}},
        {"LinesComeInReverse",
         c_Server,
         {{c_Close, "row_number() over (order by s.PLACE)", "row_number() over (order by s.PLACE desc)"}},
         "DODAK",
         {c_Reversed}},
        {"AnIdentityIsNotWrittenDown",
         c_Server,
         {{c_Close, "perform note_save('DODAK', a_DODKID);", ""}},
         "DODAK",
         {c_Unknown, c_TakenUp, c_GivenUp}},
        {"WorkOnASaveThatHasComeIsTakenUp",
         c_Server,
         {{c_ObnovData, "not is_saved('DODAK', a_DODKID)", "true"}},
         "DODAK",
         {c_TakenUp}},
        {"AMissingNoteIsOpened",
         c_Server,
         {{c_CheckMaster, "select refuse_closed_note(a_DODKID)",
           "select refuse_closed_note(a_DODKID) where a_DODKID < 1000"}},
         "DODAK",
         {c_MissingOpened}},
        {"AMissingNoteIsSavedInto",
         c_Server,
         {{c_Close, "perform refuse_closed_note(a_DODKID);", ""}},
         "DODAK",
         {c_MissingSaved}},
        {"WorkOnAMissingNoteIsTakenUp",
         c_Server,
         {{c_ObnovData, "exists (select from DODAK where ID = a_DODKID and OTEVRENO = 1)", "true"}},
         "DODAK",
         {c_Recovered}},
        {"ASettingIsNotDeleted",
         c_Server,
         {{"MELVARKEDITORNASTAVENISmaz", "where ID = a_ID", "where ID = -a_ID"}},
         "DODAK",
         {c_NotDeleted}},
        {"APlacementIsNotKept",
         c_Server,
         {{c_Placement, "values (user_row(), a_TYPEDITACE, a_DATA)", "values (user_row(), a_TYPEDITACE, '<jiné/>')"}},
         "DODAK",
         {c_OtherPlacement}},
    };
}

} // namespace

std::ostream& operator<<(std::ostream& stream, const BehaviourFault& fault) {
    return stream << engineName(fault.On) << ' ' << fault.Name;
}

std::string editedProcedure(Engine engine, const ProcedureEdit& edit) {
    for (const SqlFile& file : engine == c_File ? sqliteFiles() : postgresqlFiles()) {
        if (file.Path.starts_with("procedures/") && sqlObjectName(file) == edit.Procedure) {
            std::string sql(file.Text);
            const std::size_t place = sql.find(edit.Text);
            EXPECT_NE(place, sql.npos) << edit.Procedure << ": " << edit.Text;
            EXPECT_EQ(sql.find(edit.Text, place + 1), sql.npos) << edit.Procedure << ": " << edit.Text;
            return place == sql.npos ? sql : sql.replace(place, std::string_view(edit.Text).size(), edit.With);
        }
    }
    ADD_FAILURE() << edit.Procedure << " is no procedure";
    return {};
}

std::vector<BehaviourFault> behaviourFaults() {
    std::vector<BehaviourFault> faults = fileFaults();
    const std::vector<BehaviourFault> server = serverFaults();
    faults.insert(faults.end(), server.begin(), server.end());
    return faults;
}

} // namespace refhost
