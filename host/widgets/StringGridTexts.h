#pragma once

/// \file
/// The texts of one column of a string grid.

#include "host/Types.h"

#include <functional>
#include <map>

/// Gives the text of the cell in a grid row (at least 1) of one column. The reference holds until what it shows is
/// changed.
using TColumnTexts = std::function<const AnsiString&(int row)>;

namespace melvark {

/// The texts of one column of a string grid, by grid row: those that were written into the grid, and where none was,
/// what lies underneath. Only texts that differ from it are kept, so that a column over somebody else's texts has no
/// copy of them. Row 0, the header, has nothing underneath.
class StringGridTexts {
public:
    /// What the cell shows. The reference holds until the text changes.
    const AnsiString& Text(int row) const;
    /// Writes over what lies underneath; the same text as there is forgotten.
    void SetText(int row, AnsiString text);
    /// Forgets the texts that were written below the header.
    void SetUnderneath(TColumnTexts texts);
    /// Forgets the texts that were written from that row on.
    void ForgetFrom(int row);

private:
    const AnsiString& Underneath(int row) const;

    TColumnTexts FUnderneath; ///< Empty texts when it is empty.
    std::map<int, AnsiString> FWritten;
};

} // namespace melvark
