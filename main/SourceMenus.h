#pragma once

#include "host/Types.h"

#include <span>
#include <string_view>

namespace melvark {

/// One entry of a source menu. Some entries share a language key with the entry above them; their built-in texts
/// differ.
struct SourceMenuEntry {
    int Tag;              ///< Number of the entry's code in the menu's code table, from 1.
    std::string_view Key; ///< Language key of the caption, without the common prefix.
    std::string_view Caption;
    std::string_view Hint;
};

/// The popup menu of one document screen: its entries in the order shown and the codes that their tags stand for.
struct SourceMenu {
    std::span<const SourceMenuEntry> Entries;
    std::span<const std::string_view> Codes;
};

extern const SourceMenu c_DodakMenu;      ///< Delivery notes.
extern const SourceMenu c_DodObjMenu;     ///< Supplier orders.
extern const SourceMenu c_DodObjVzorMenu; ///< Order templates; they offer no template of the latest orders.

/// The caption and the hint in the user's language. Need a current host.
AnsiString MenuCaption(const SourceMenuEntry& entry);
AnsiString MenuHint(const SourceMenuEntry& entry);

/// The edit-type code of a menu tag; empty for a tag that the table lacks.
AnsiString SourceCode(std::span<const std::string_view> codes, int tag);

} // namespace melvark
