#pragma once

/// \file
/// The errors that travel between a host and its plug-ins.

#include "host/Types.h"

#include <exception>
#include <optional>

/// The framework's message-carrying base exception. The message is a sentence for the user, in UTF-8. Throw one of the
/// classes below; a host shows what arrives in THostServices::ShowError or leaves TLibraryItem::Execute.
///
/// Every class below has an out-of-line destructor, so that its type information lives in the contract library alone
/// and an exception thrown in a plug-in is caught by type in the host.
class Exception : public std::exception {
public:
    /// The sentence, already in the user's language.
    explicit Exception(AnsiString message);
    Exception(const Exception&) = default;
    Exception& operator=(const Exception&) = default;
    ~Exception() override;

    const char* what() const noexcept override;
    /// The sentence; what() gives the same bytes.
    const AnsiString& Message() const noexcept;

private:
    AnsiString FMessage;
};

/// A text does not convert to the wanted type, or a format text and its arguments do not fit.
class EConvertError : public Exception {
public:
    using Exception::Exception;
    EConvertError(const EConvertError&) = default;
    EConvertError& operator=(const EConvertError&) = default;
    ~EConvertError() override;
};

/// A file could not be read or written.
class EInOutError : public Exception {
public:
    using Exception::Exception;
    EInOutError(const EInOutError&) = default;
    EInOutError& operator=(const EInOutError&) = default;
    ~EInOutError() override;
};

/// Why the database did not do what it was asked for.
enum class TDatabaseCause {
    Refusal, ///< What was asked or sent is at fault.
    Failure  ///< The database itself is: a lost link, a full disk, another user in the way.
};

/// The database refused or failed, or a field, parameter or procedure is missing.
class EDatabaseError : public Exception {
public:
    /// `code` is the database's own refusal code (empty when it gave none): a translation is looked up by it.
    /// `details` is what an administrator needs (engine, statement, position); it is never shown in front.
    explicit EDatabaseError(AnsiString message, AnsiString code = {}, AnsiString details = {},
                            TDatabaseCause cause = TDatabaseCause::Refusal);
    EDatabaseError(const EDatabaseError&) = default;
    EDatabaseError& operator=(const EDatabaseError&) = default;
    ~EDatabaseError() override;

    /// The refusal's code, empty for an error that the database gave none.
    const AnsiString& Code() const noexcept;
    /// For the administrator, in any language; may be empty.
    const AnsiString& Details() const noexcept;
    /// Who has to do something: the clerk or the administrator.
    TDatabaseCause Cause() const noexcept;

    /// The line of a save that the refusal is about, counted from 0 in the order in which the lines are sent; nothing
    /// when it is about none. A connection that reports a line later than at the line's own call names it; where it
    /// names none, the caller knows what it has just sent.
    std::optional<int> Row() const noexcept;
    /// The same error about that line.
    EDatabaseError AboutRow(int row) const;

private:
    AnsiString FCode;
    AnsiString FDetails;
    TDatabaseCause FCause;
    std::optional<int> FRow;
};

/// A host service was asked for while no host is installed, or the host cannot give it.
class EHostError : public Exception {
public:
    using Exception::Exception;
    EHostError(const EHostError&) = default;
    EHostError& operator=(const EHostError&) = default;
    ~EHostError() override;
};
