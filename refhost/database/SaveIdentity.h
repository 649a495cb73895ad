#pragma once

#include "host/Connection.h"

#include <string>
#include <string_view>

namespace refhost {

/// The two procedures by which a database tells saves apart; one of somebody else may lack them.
inline constexpr const char* c_MarkSaveProcedure = "MELVARKEDITORUlozeniOznac";
inline constexpr const char* c_AskAboutSaveProcedure = "MELVARKEDITORUlozeniOver";

/// 32 hexadecimal digits that no other save has.
std::string newSaveIdentity();

/// Whether the text is of the form of one.
bool isSaveIdentity(std::string_view text);

/// The call of one of them; null is no identity.
TProcedureCall callAboutSave(const char* procedure, TDbValue identity);

} // namespace refhost
