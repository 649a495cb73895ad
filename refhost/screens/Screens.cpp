#include "refhost/screens/Screens.h"

#include "host/Exceptions.h"
#include "host/LangStr.h"
#include "refhost/Languages.h"

#include <algorithm>
#include <array>

namespace refhost {

namespace {

constexpr std::array c_screens{
    ScreenDefinition{"DODAK", texts::deliveryNotes, "SCREEN_DODAK_V", "SCREEN_DODAK_LINES_V", "", "DATUM",
                     Qt::DescendingOrder},
    ScreenDefinition{"DODOBJ", texts::orders, "SCREEN_DODOBJ_V", "SCREEN_DODOBJ_LINES_V", "SCREEN_DODOBJ_CREATED_V",
                     "OBJEDNANIDC", Qt::DescendingOrder},
    ScreenDefinition{"DODOBJVZOR", texts::orderTemplates, "SCREEN_DODOBJVZOR_V", "SCREEN_DODOBJVZOR_LINES_V", "",
                     "CISLO", Qt::AscendingOrder},
};

const ScreenDefinition* screenOfCode(std::string_view code) {
    const auto screen =
        std::find_if(c_screens.begin(), c_screens.end(), [&](const auto& each) { return each.code == code; });
    return screen == c_screens.end() ? nullptr : &*screen;
}

} // namespace

std::span<const ScreenDefinition> screenDefinitions() {
    return c_screens;
}

const ScreenDefinition& findScreen(std::string_view code, const Languages& languages) {
    if (const ScreenDefinition* screen = screenOfCode(code)) {
        return *screen;
    }
    const QString name = QString::fromUtf8(code.data(), static_cast<qsizetype>(code.size()));
    throw EHostError(languages.label(texts::unknownScreen).arg(name).toStdString());
}

const ScreenDefinition& screenOfParams(std::string_view params) {
    const ScreenDefinition* screen = screenOfCode(GetWord(params, 0, ','));
    return screen ? *screen : c_screens.front();
}

TResultTable readDocuments(TConnection& connection, const ScreenDefinition& screen) {
    return connection.Query("select * from " + std::string(screen.documentsView) + " order by _ID");
}

TResultTable readDocument(TConnection& connection, const ScreenDefinition& screen, std::int32_t document) {
    return connection.Query("select * from " + std::string(screen.documentsView) +
                            " where _ID = " + std::to_string(document));
}

// The names of new documents are a kindness: for want of them nobody is kept from inserting lines. Whatever else is
// wrong with the database, the next call says.
std::optional<std::set<std::int64_t>> readCreated(TConnection& connection, const ScreenDefinition& screen) try {
    std::set<std::int64_t> created;
    if (!screen.createdView.empty()) {
        for (const auto& row : connection.Query("select _ID from " + std::string(screen.createdView)).Rows) {
            const auto* const id = std::get_if<std::int64_t>(&row.front());
            if (!id) {
                return std::nullopt;
            }
            created.insert(*id);
        }
    }
    return created;
} catch (const EDatabaseError&) {
    return std::nullopt;
}

TResultTable readLines(TConnection& connection, const ScreenDefinition& screen, std::int32_t document) {
    return connection.Query("select * from " + std::string(screen.linesView) +
                            " where _DOCID = " + std::to_string(document) + " order by PORADI, _ID");
}

} // namespace refhost
