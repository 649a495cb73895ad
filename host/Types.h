#pragma once

/// \file
/// The two types that every part of the contract speaks.

#include <chrono>
#include <string>

/// \namespace melvark
/// What has no name of the framework's: helpers for texts, buttons and forms.

/// Text as stores, rules, documents, files and database values speak it: UTF-8 bytes without a terminator of their own.
/// It becomes a Qt string at the widget boundary and nowhere else.
using AnsiString = std::string;

/// A calendar moment without a time zone, to the second, as the documents of the host carry it.
using TDateTime = std::chrono::local_seconds;
