#pragma once

#include "host/Connection.h"

#include <string>

namespace refhost {

/// The two procedures by which a database tells saves apart; one of somebody else may lack them.
inline constexpr const char* c_MarkSaveProcedure = "MELVARKEDITORUlozeniOznac";
inline constexpr const char* c_AskAboutSaveProcedure = "MELVARKEDITORUlozeniOver";

/// 32 hexadecimal digits that no other save has.
std::string newSaveIdentity();

/// The call of one of them; null is no identity.
TProcedureCall callAboutSave(const char* procedure, TDbValue identity);

} // namespace refhost
