#include "refhost/Languages.h"

#include "host/Exceptions.h"

#include <QCoreApplication>
#include <QDir>

#include <array>

/// The catalogues are compiled into a static library, whose resources are not registered by themselves. The macro does
/// not work inside a namespace.
static void registerCatalogues() {
    Q_INIT_RESOURCE(languages);
}

namespace refhost {

namespace {

const QString c_builtInLanguage = QStringLiteral("cs");

/// One catalogue for the host's own texts, one for those of the module, one for the database's refusals.
constexpr std::array c_catalogues{u"host", u"module", u"database"};

std::unique_ptr<QTranslator> loadCatalogue(const QString& name) {
    auto translator = std::make_unique<QTranslator>();
    return translator->load(name, QStringLiteral(":/languages")) ? std::move(translator) : nullptr;
}

std::optional<std::string> translateId(const QTranslator& catalogue, const std::string& id) {
    const QString text = catalogue.translate("", id.c_str());
    if (text.isNull()) {
        return std::nullopt;
    }
    return text.toStdString();
}

} // namespace

Languages::Languages(const std::string& language) : language_(language) {
    registerCatalogues();
    const QString wanted = QString::fromStdString(language);
    if (wanted == c_builtInLanguage) {
        return;
    }
    for (const char16_t* catalogue : c_catalogues) {
        auto loaded = loadCatalogue(QString::fromUtf16(catalogue) + u'_' + wanted);
        if (!loaded) {
            throw EHostError("Jazyk „" + language + "“ není k dispozici.");
        }
        catalogues_.push_back(std::move(loaded));
    }
}

std::optional<std::string> Languages::translation(std::string_view key, std::string_view builtIn) const {
    const std::string plain(key);
    const std::string withText = plain + "|" + std::string(builtIn);
    for (const std::string& id : {withText, plain}) {
        for (const auto& catalogue : catalogues_) {
            if (auto text = translateId(*catalogue, id)) {
                return text;
            }
        }
    }
    return std::nullopt;
}

std::string Languages::text(const HostText& text) const {
    return translation(text.key, text.builtIn).value_or(std::string(text.builtIn));
}

QString Languages::label(const HostText& text) const {
    return QString::fromStdString(this->text(text));
}

void Languages::installQtTexts(QCoreApplication& application) {
    // Qt's built-in language is English, so that its English catalogue is empty or absent.
    auto texts = loadCatalogue(QStringLiteral("qtbase_") + QString::fromStdString(language_));
    if (!texts) {
        return;
    }
    qtTexts_ = std::move(texts);
    application.installTranslator(qtTexts_.get());
}

} // namespace refhost
