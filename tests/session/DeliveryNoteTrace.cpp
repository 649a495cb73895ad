#include "tests/session/DeliveryNoteTrace.h"

#include "tests/session/HostSession.h"

#include <gmock/gmock.h>

namespace {

std::string callLine(const std::string& name, bool open, const std::string& params, int rows,
                     const std::string& error) {
    return R"({"call":")" + name + R"(","open":)" + (open ? "true" : "false") + R"(,"params":[)" + params +
           R"(],"rows":)" + std::to_string(rows) + R"(,"error":)" + error + "}";
}

} // namespace

std::string call(const std::string& name, bool open, const std::string& params, int rows) {
    return callLine(name, open, params, rows, "null");
}

std::string refusedCall(const std::string& name, bool open, const std::string& params, const std::string& sentence) {
    return callLine(name, open, params, 0, '"' + sentence + '"');
}

std::string shownError(const std::string& sentence) {
    return R"({"error":")" + sentence + R"("})";
}

Lines openingCalls(int type) {
    const std::string typeParam = R"(["a_TYPEDITACE",)" + std::to_string(type) + "]";
    return {
        call("MELVARKEDITORDodakInit", true, "", 4), // the user, one rate, two warehouses
        call("select NAZEV from SKLAD_V order by NAZEV", true, "", 2),
        call("MELVARKEDITORNASTAVENIGetList", true, typeParam, 0),
        call("MELVARKEDITORNASTAVENINactiDef", true, typeParam, 1), // one row with nulls: no default
        call("MELVARKEDITORDodakCheckMaster", false, R"(["a_DODKID",2])", 0),
    };
}

std::string templateRead() {
    return call("MELVARKEDITORDodakGetPolozkyByDodak", true,
                R"(["a_DODKIDMASTER",null],["a_DODKID",2],["a_PRENESMNOZSTVI",true],["a_PRENESCENY",true])", 2);
}

std::string placement() {
    return call("MELVARKEDITORNASTAVENINactiNastaveniOkna", true, R"(["a_TYPEDITACE",0])", 1);
}

std::string sevenAndAHalfTyped() {
    // The quantity alone is the clerk's, the template's prices of 2 pieces at 10.00 travel along.
    return call(
        "MELVARKEDITORDodakVypocetCen", true,
        R"(["a_ZMENENEBUNKY","MNOZSTVI;"],["a_PREPOCETCEN",true],["a_FOCUS","MNOZSTVI"],)"
        R"(["a_JEDNCENABBEZSLEVY",10],["a_JEDNDPHABEZSLEVY",2.1],["a_JEDNDPHBBEZSLEVY",0],)"
        R"(["a_JEDNCENASBEZSLEVY",12.1],["a_JEDNCENABSESLEVOU",10],["a_JEDNDPHASESLEVOU",2.1],)"
        R"(["a_JEDNDPHBSESLEVOU",0],["a_JEDNCENASSESLEVOU",12.1],["a_CENABSESLEVOU",20],["a_DPHASESLEVOU",4.2],)"
        R"(["a_DPHBSESLEVOU",0],["a_CENASSESLEVOU",24.2],["a_CENABBEZSLEVY",20],["a_DPHABEZSLEVY",4.2],)"
        R"(["a_DPHBBEZSLEVY",0],["a_CENASBEZSLEVY",24.2],["a_DPH","21 %"],["a_SLEVA",0],["a_MNOZSTVI",7.5])",
        1);
}

std::string saveBegun() {
    return call("MELVARKEDITORResetTemp", false, "", 0);
}

std::string cukrRow() {
    return call(
        "MELVARKEDITORDodakInsertToTemp", false,
        R"(["a_DOBSID",null],["a_SKLADPOL","Cukr"],["a_SKLAD","Hlavní sklad"],["a_MNOZSTVI","5"],["a_DPH","21 %"],)"
        R"(["a_SLEVA","10"],["a_JEDNCENABSL","18"],["a_JEDNDPHASL","3.78"],["a_JEDNDPHBSL","0"],)"
        R"(["a_JEDNCENASSL","21.78"],["a_JEDNCENAB","20"],["a_JEDNDPHA","4.2"],["a_JEDNDPHB","0"],)"
        R"(["a_JEDNCENAS","24.2"],["a_CENABSL","90.00"],["a_DPHASL","18.90"],["a_DPHBSL","0.00"],)"
        R"(["a_CENASSL","108.90"],["a_CENAB","100.00"],["a_DPHA","21.00"],["a_DPHB","0.00"],["a_CENAS","121.00"],)"
        R"(["a_TRVANLIVOST",null])",
        0);
}

std::string closing(const std::string& noteSource, const std::string& orderSource) {
    return call("MELVARKEDITORDodakTempUloz", false,
                R"(["a_DODKID",2],["a_DODKID_ZDROJ",)" + noteSource + R"(],["a_DDOBID_ZDROJ",)" + orderSource + "]", 0);
}

Lines withoutStoredPlacement(Lines trace, int placementType) {
    EXPECT_FALSE(trace.empty());
    if (!trace.empty()) {
        EXPECT_THAT(trace.back(), testing::HasSubstr(R"("MELVARKEDITORNASTAVENIUlozNastaveniOkna","open":false,)"
                                                     R"("params":[["a_TYPEDITACE",)" +
                                                     std::to_string(placementType) + R"(],["a_DATA",")"));
        trace.pop_back();
    }
    return trace;
}

Lines storedLines(const HostSession& session) {
    return session.ask(
        {QStringLiteral("--query"), QStringLiteral("select PORADI, SKLPID, number_text(MNOZSTVI) as MNOZSTVI, "
                                                   "number_text(JEDNCENABSESLEVOU) as JEDNCENABSESLEVOU, "
                                                   "number_text(CENASSESLEVOU) as CENASSESLEVOU, DOBSID "
                                                   "from DODAKPOL where DODKID = 2 order by PORADI")});
}
