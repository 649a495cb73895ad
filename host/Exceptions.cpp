#include "host/Exceptions.h"

#include <utility>

Exception::Exception(AnsiString message) : FMessage(std::move(message)) {}

Exception::~Exception() = default;

const char* Exception::what() const noexcept {
    return FMessage.c_str();
}

const AnsiString& Exception::Message() const noexcept {
    return FMessage;
}

EConvertError::~EConvertError() = default;

EInOutError::~EInOutError() = default;

EDatabaseError::EDatabaseError(AnsiString message, AnsiString code, AnsiString details, TDatabaseCause cause)
    : Exception(std::move(message)), FCode(std::move(code)), FDetails(std::move(details)), FCause(cause) {}

EDatabaseError::~EDatabaseError() = default;

const AnsiString& EDatabaseError::Code() const noexcept {
    return FCode;
}

const AnsiString& EDatabaseError::Details() const noexcept {
    return FDetails;
}

TDatabaseCause EDatabaseError::Cause() const noexcept {
    return FCause;
}

std::optional<int> EDatabaseError::Row() const noexcept {
    return FRow;
}

EDatabaseError EDatabaseError::AboutRow(int row) const {
    EDatabaseError error(*this);
    error.FRow = row;
    return error;
}

EHostError::~EHostError() = default;
