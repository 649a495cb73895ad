#include "tests/languages/CatalogueFile.h"

#include <QFile>
#include <QXmlStreamReader>

#include <gtest/gtest.h>
#include <regex>

namespace {

CatalogueEntry readEntry(QXmlStreamReader& xml) {
    CatalogueEntry entry{
        .id = xml.attributes().value(QStringLiteral("id")).toString().toStdString(), .source = {}, .translation = {}};
    while (xml.readNextStartElement()) {
        std::string* const text = xml.name() == u"source"        ? &entry.source
                                  : xml.name() == u"translation" ? &entry.translation
                                                                 : nullptr;
        const std::string read = xml.readElementText().toStdString();
        if (text) {
            *text = read;
        }
    }
    return entry;
}

} // namespace

std::vector<CatalogueEntry> readCatalogue(const std::string& name, const std::string& language) {
    QFile file(QString::fromStdString(MELVARK_SOURCES "/refhost/languages/" + name + "_" + language + ".ts"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    QXmlStreamReader xml(&file);
    std::vector<CatalogueEntry> entries;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"message") {
            entries.push_back(readEntry(xml));
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return entries;
}

std::multiset<std::string> placeholders(const std::string& text) {
    static const std::regex placeholder("%[0-9sdfm%]");
    return {std::sregex_token_iterator(text.begin(), text.end(), placeholder), std::sregex_token_iterator()};
}
