#pragma once

#include "host/Connection.h"
#include "host/FormatSettings.h"
#include "refhost/screens/DocumentDataSet.h"
#include "refhost/screens/WindowLook.h"

#include <QStringList>
#include <QWidget>

#include <cstdint>
#include <optional>
#include <set>

class QLabel;
class QSplitter;

namespace refhost {

class Languages;
class ResultTable;
class SearchableTable;
struct ScreenDefinition;

/// One document screen: the documents above, the stored lines of the current one below. It only reads; what changes a
/// document is a library item, which gets dataSet() and after which the screen is refreshed.
class DocumentScreen : public QWidget {
    Q_OBJECT
public:
    DocumentScreen(const ScreenDefinition& definition, TConnection& connection, const TFormatSettings& settings,
                   const Languages& languages, QWidget* parent);

    const ScreenDefinition& definition() const { return definition_; }

    /// Reads the documents and the current one's lines again; the current document stays current. Throws
    /// EDatabaseError.
    void refresh();
    /// The documents that this session's saves have made so far; nothing when the database does not tell.
    std::optional<std::set<std::int64_t>> created() const;
    /// Refreshes; the numbers of the documents that this session's saves have made beside those, in their order. What
    /// others made meanwhile is not named, nor anything without knowing what there was before.
    QStringList refreshForCreated(const std::optional<std::set<std::int64_t>>& before);

    /// The current document, or an empty dataset.
    DocumentDataSet dataSet() const;

    /// Before the first refresh: how the screen was left.
    void setLook(const ScreenLook& look);
    ScreenLook look() const;

    /// Puts the cursor into the search line.
    void startSearch();

private:
    void showLines();

    const ScreenDefinition& definition_;
    TConnection& connection_;
    TFormatSettings settings_;
    const Languages& languages_;
    SearchableTable* documents_;
    QLabel* linesTitle_;
    ResultTable* lines_;
    QSplitter* splitter_;
    bool heightsAreSet_ = false; ///< By the user.
    bool sorted_ = false;
    bool refreshing_ = false;
};

} // namespace refhost
