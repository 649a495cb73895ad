#include "tests/database/Staging.h"

namespace refhost {

namespace {

Parameters parametersOf(const Cells& cells) {
    Parameters parameters;
    for (const auto& [name, text] : cells) {
        parameters.push_back({name, text});
    }
    return parameters;
}

} // namespace

void beginSave(Database& database) {
    EXPECT_EQ(answer(database, "MELVARKEDITORResetTemp"), "");
}

std::string stageNoteRow(Database& database, const Cells& cells) {
    return answer(database, "MELVARKEDITORDodakInsertToTemp", parametersOf(cells));
}

std::string stageOrderRow(Database& database, const Cells& cells) {
    return answer(database, "MELVARKEDITORDodObjInsertToTemp", parametersOf(cells));
}

std::string saveNote(Database& database, const TDbValue& note, const NoteSources& sources) {
    return answer(database, "MELVARKEDITORDodakTempUloz",
                  {{"a_DODKID", note}, {"a_DODKID_ZDROJ", sources.Note}, {"a_DDOBID_ZDROJ", sources.Order}});
}

std::string saveOrder(Database& database, const TDbValue& document, const OrderSources& sources) {
    return answer(database, "MELVARKEDITORDodObjTempUloz",
                  {{"a_DDOBID", document},
                   {"a_DDOBID_ZDROJ", sources.Order},
                   {"a_DDOBIDVZOR_ZDROJ", sources.Template},
                   {"a_DODKID_ZDROJ", sources.Note}});
}

} // namespace refhost
