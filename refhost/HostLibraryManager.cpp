#include "refhost/HostLibraryManager.h"

#include "host/Exceptions.h"
#include "host/widgets/MessageBox.h"
#include "refhost/Languages.h"
#include "refhost/Trace.h"
#include "refhost/lookup/LookupDialog.h"
#include "refhost/lookup/LookupQuery.h"

#include <QApplication>

#include <algorithm>

namespace refhost {

HostLibraryManager::HostLibraryManager(Parts parts) : parts_(std::move(parts)) {}

int HostLibraryManager::MessageBox(const AnsiString& text, int flags) {
    const HostText& caption = flags == c_MessageBoxQuestion ? texts::questionCaption : texts::errorCaption;
    const int result = ApplicationMessageBox(text, parts_.languages.text(caption), flags);
    parts_.trace.box(text, flags, result);
    return result;
}

void HostLibraryManager::Message(const AnsiString& text, const AnsiString& style) {
    parts_.trace.message(text, style);
    ApplicationMessageBox(text, parts_.languages.text(texts::noteCaption), c_NoteFlags);
}

std::optional<TLookupPick> HostLibraryManager::LookupList(const AnsiString& form, const AnsiString& displayColumn,
                                                          const AnsiString& keyColumn, const AnsiString& condition) {
    const std::string query = lookupQuery(form, condition, parts_.languages);
    checkColumns(parts_.openRows(query)->columns(), form, displayColumn, keyColumn);
    LookupDialog dialog(parts_.openRows(inOrderOf(displayColumn, query)), displayColumn, keyColumn, parts_.settings,
                        parts_.languages, QApplication::activeWindow());
    dialog.exec();
    std::optional<TLookupPick> pick = dialog.pick();
    parts_.trace.lookup(form, displayColumn, keyColumn, condition, pick);
    return pick;
}

void HostLibraryManager::checkColumns(const std::vector<AnsiString>& columns, const AnsiString& form,
                                      const AnsiString& displayColumn, const AnsiString& keyColumn) const {
    for (const AnsiString& column : {displayColumn, keyColumn}) {
        const bool isThere = std::any_of(columns.begin(), columns.end(),
                                         [&](const AnsiString& each) { return SameDbName(each, column); });
        if (!isThere) {
            throw EHostError(parts_.languages.label(texts::lookupNoColumn)
                                 .arg(QString::fromStdString(form), QString::fromStdString(column))
                                 .toStdString());
        }
    }
}

void HostLibraryManager::LocalizeForm(TLocalizableForm& form, const AnsiString& section) {
    form.VisitTexts([&](const TLocalizableForm::TText& text) {
        const AnsiString key = section + "\\" + text.Control + "\\" + text.Property;
        if (const auto translated = parts_.languages.translation(key, text.Text)) {
            text.Replace(*translated);
        }
    });
}

} // namespace refhost
