#include "refhost/database/StopSignal.h"

#include <utility>

namespace refhost {

namespace {

constexpr const char* c_Sentence = "Práce byla zastavena.";

} // namespace

EStopped::EStopped(AnsiString details) : EDatabaseError(c_Sentence, {}, std::move(details), TDatabaseCause::Failure) {}

EStopped::~EStopped() = default;

} // namespace refhost
