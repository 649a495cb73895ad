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

EDatabaseError::EDatabaseError(AnsiString message, AnsiString code, AnsiString details)
    : Exception(std::move(message)), FCode(std::move(code)), FDetails(std::move(details)) {}

EDatabaseError::~EDatabaseError() = default;

const AnsiString& EDatabaseError::Code() const noexcept {
    return FCode;
}

const AnsiString& EDatabaseError::Details() const noexcept {
    return FDetails;
}

EHostError::~EHostError() = default;
