#pragma once

#include "host/Exceptions.h"

/// The failures of the grid editor. Each stands for itself, none is a kind of another: a cancelled preparation must not
/// be caught where a failure is.

/// A value typed into a validated column does not convert; the message names the value for the user.
class EBadValue : public Exception {
public:
    using Exception::Exception;
    EBadValue(const EBadValue&) = default;
    EBadValue& operator=(const EBadValue&) = default;
    ~EBadValue() override;
};

/// A general failure of the grid editor and of the document editors made from it.
class EEditBox : public Exception {
public:
    using Exception::Exception;
    EEditBox(const EEditBox&) = default;
    EEditBox& operator=(const EEditBox&) = default;
    ~EEditBox() override;
};

/// The user cancelled a step of an editor's preparation; raised with the message "Canceled" and never shown.
class EEditBoxCanceled : public Exception {
public:
    using Exception::Exception;
    EEditBoxCanceled(const EEditBoxCanceled&) = default;
    EEditBoxCanceled& operator=(const EEditBoxCanceled&) = default;
    ~EEditBoxCanceled() override;
};
