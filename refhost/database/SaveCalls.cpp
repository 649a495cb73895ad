#include "refhost/database/SaveCalls.h"

#include "host/Connection.h"

#include <algorithm>

namespace refhost {

namespace {

constexpr std::string_view c_CloseNote = "MELVARKEDITORDodakTempUloz";
constexpr std::string_view c_CloseOrder = "MELVARKEDITORDodObjTempUloz";

constexpr SaveCall c_Calls[] = {
    {"MELVARKEDITORDodakInsertToTemp", SaveStep::Row, c_CloseNote},
    {"MELVARKEDITORDodObjInsertToTemp", SaveStep::Row, c_CloseOrder},
    {"MELVARKEDITORResetTemp", SaveStep::Begin, {}},
    {c_CloseNote, SaveStep::Closing, c_CloseNote},
    {c_CloseOrder, SaveStep::Closing, c_CloseOrder},
    {"MELVARKEDITORDodakInit", SaveStep::Opening, c_CloseNote},
    {"MELVARKEDITORDodObjInit", SaveStep::Opening, c_CloseOrder},
    {"MELVARKEDITORDodakObnovData", SaveStep::AboutWork, c_CloseNote},
    {"MELVARKEDITORDodObjObnovData", SaveStep::AboutWork, c_CloseOrder},
};

} // namespace

SaveCall saveCallOf(std::string_view procedure) {
    const auto* const found = std::ranges::find_if(
        c_Calls, [procedure](const SaveCall& call) { return SameDbName(call.Procedure, procedure); });
    return found == std::end(c_Calls) ? SaveCall{procedure, SaveStep::Other, {}} : *found;
}

} // namespace refhost
