#pragma once

#include "refhost/HostTexts.h"

#include <QString>
#include <QTranslator>

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QCoreApplication;

namespace refhost {

/// The languages of the host. Czech is built into the texts themselves; every other language is a set of compiled
/// catalogues (sources in refhost/languages/, edited with Qt's translation tools) that are looked up by id.
///
/// Entries that share a key on purpose are told apart by their built-in text: the id "KEY|built-in text" is looked for
/// first, then the id "KEY".
class Languages {
public:
    /// `language` is "cs" or the name of the catalogues ("en"). Throws EHostError when there are none of that name.
    explicit Languages(const std::string& language);

    /// The translation of the key, or nothing when the catalogues have none.
    std::optional<std::string> translation(std::string_view key, std::string_view builtIn) const;

    /// A text of the host itself.
    std::string text(const HostText& text) const;
    /// The same for a widget.
    QString label(const HostText& text) const;

    /// Gives Qt's own texts (context menus of edits, standard buttons) the same language. The texts stay for
    /// the life of this object.
    void installQtTexts(QCoreApplication& application);

private:
    std::string language_;
    std::vector<std::unique_ptr<QTranslator>> catalogues_;
    std::unique_ptr<QTranslator> qtTexts_;
};

} // namespace refhost
