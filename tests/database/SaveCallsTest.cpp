#include "refhost/database/SaveCalls.h"

#include <gtest/gtest.h>
#include <ostream>

namespace refhost {
namespace {

struct Case {
    const char* Procedure;
    SaveStep Is;
    const char* Closing;
};

void PrintTo(const Case& each, std::ostream* out) {
    *out << each.Procedure;
}

constexpr Case c_Cases[] = {
    {"MELVARKEDITORDodakInit", SaveStep::Opening, "MELVARKEDITORDodakTempUloz"},
    {"MELVARKEDITORDodObjInit", SaveStep::Opening, "MELVARKEDITORDodObjTempUloz"},
    {"MELVARKEDITORResetTemp", SaveStep::Begin, ""},
    {"MELVARKEDITORDodakInsertToTemp", SaveStep::Row, "MELVARKEDITORDodakTempUloz"},
    {"MELVARKEDITORDodObjInsertToTemp", SaveStep::Row, "MELVARKEDITORDodObjTempUloz"},
    {"MELVARKEDITORDodakTempUloz", SaveStep::Closing, "MELVARKEDITORDodakTempUloz"},
    {"MELVARKEDITORDodObjTempUloz", SaveStep::Closing, "MELVARKEDITORDodObjTempUloz"},
    {"MELVARKEDITORDodakObnovData", SaveStep::AboutWork, "MELVARKEDITORDodakTempUloz"},
    {"MELVARKEDITORDodObjObnovData", SaveStep::AboutWork, "MELVARKEDITORDodObjTempUloz"},
    {"melvarkeditordodaktempuloz", SaveStep::Closing, "MELVARKEDITORDodakTempUloz"}, // names have no case
    {"MELVARKEDITORDodakVypocetCen", SaveStep::Other, ""},
    {"", SaveStep::Other, ""},
};

class SaveCalls : public testing::TestWithParam<Case> {};

TEST_P(SaveCalls, EachProcedureHasItsPartInASave) {
    const SaveCall call = saveCallOf(GetParam().Procedure);
    EXPECT_EQ(call.Is, GetParam().Is);
    EXPECT_EQ(call.Closing, GetParam().Closing);
}

INSTANTIATE_TEST_SUITE_P(All, SaveCalls, testing::ValuesIn(c_Cases));

} // namespace
} // namespace refhost
