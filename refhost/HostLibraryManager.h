#pragma once

#include "host/FormatSettings.h"
#include "host/LibraryManager.h"
#include "refhost/database/RowReader.h"

#include <functional>
#include <memory>
#include <vector>

namespace refhost {

class Languages;
class Trace;

/// The platform's flags of a note: information icon, OK button.
inline constexpr int c_NoteFlags = 64;

/// The host's library manager: message boxes, lookup lists and the languages of forms. Boxes, messages and lookups are
/// traced; the rows of a lookup list are the host's own affair and are not.
class HostLibraryManager : public TLibraryManager {
public:
    struct Parts {
        /// Begins to read a lookup list (Database::openRows).
        std::function<std::shared_ptr<RowReader>(const AnsiString& sql)> openRows;
        TFormatSettings settings;
        const Languages& languages;
        Trace& trace;
    };

    explicit HostLibraryManager(Parts parts);

    int MessageBox(const AnsiString& text, int flags) override;
    /// "O#" is a note with an OK button; this host shows every other style the same way.
    void Message(const AnsiString& text, const AnsiString& style) override;
    /// Throws EHostError for a list that this host does not have, EDatabaseError when the condition cannot be used.
    std::optional<TLookupPick> LookupList(const AnsiString& form, const AnsiString& displayColumn,
                                          const AnsiString& keyColumn, const AnsiString& condition) override;
    void LocalizeForm(TLocalizableForm& form, const AnsiString& section) override;

private:
    void checkColumns(const std::vector<AnsiString>& columns, const AnsiString& form, const AnsiString& displayColumn,
                      const AnsiString& keyColumn) const;

    Parts parts_;
};

} // namespace refhost
