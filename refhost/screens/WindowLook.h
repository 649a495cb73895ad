#pragma once

#include "host/ReachablePlace.h"
#include "refhost/tables/TableLook.h"

#include <map>
#include <optional>
#include <string>

namespace refhost {

/// How somebody left a document screen.
struct ScreenLook {
    TableLook documents;
    TableLook lines;
    int documentsHeight = 0; ///< Of the two tables, in pixels; 0 when nobody has moved what parts them.
    int linesHeight = 0;

    bool operator==(const ScreenLook&) const = default;
};

/// How somebody left the host's window, so that it opens in the same way. Screens go by their codes.
struct WindowLook {
    std::optional<melvark::WindowPlacement> place;
    std::string screen;
    std::map<std::string, ScreenLook> screens;

    bool operator==(const WindowLook&) const = default;
};

/// The file in which the look of the user's window is kept, in his configuration directory.
std::string windowLookFile();

/// What the file says; what it does not say, or says in a way that makes no sense, is as if it had never been kept.
/// Never an error: a file that is missing, damaged or something else says nothing.
WindowLook readWindowLook(const std::string& file);

/// Puts the look in the file's place, or leaves what was there: false when it could not be written.
bool writeWindowLook(const std::string& file, const WindowLook& look);

} // namespace refhost
