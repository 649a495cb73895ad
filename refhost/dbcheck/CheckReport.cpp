#include "refhost/dbcheck/CheckReport.h"

#include "refhost/Json.h"
#include "refhost/Languages.h"
#include "refhost/dbcheck/FindingTexts.h"

#include <algorithm>

namespace refhost {

namespace {

/// How a kind of what was written is called by programs and told to people: %1 is the object, %2 the count.
struct WrittenText {
    Written::What what;
    std::string_view code;
    HostText sentence;
};

constexpr WrittenText c_Written[] = {
    {Written::What::Lines, "lines", {"MELVARKHOST\\DBCHECK\\WRITTENLINES", "Zapsáno: doklad %1, nové řádky: %2"}},
    {Written::What::Identities,
     "identities",
     {"MELVARKHOST\\DBCHECK\\WRITTENIDENTITIES", "Zapsáno: doklad %1, označení ukládání: %2"}},
    {Written::What::Setting,
     "setting",
     {"MELVARKHOST\\DBCHECK\\WRITTENSETTING", "Zapsáno: nastavení sloupců „%1“, nakonec zase smazané"}},
    {Written::What::Placement,
     "placement",
     {"MELVARKHOST\\DBCHECK\\WRITTENPLACEMENT", "Zapsáno: umístění okna pro druh editoru %1"}},
};

constexpr HostText c_Fits{"MELVARKHOST\\DBCHECK\\FITS", "Databáze vyhovuje."};
constexpr HostText c_Count{"MELVARKHOST\\DBCHECK\\COUNT", "Nevyhovuje, nálezů: %1"};

std::string findingJson(const Finding& finding, const Languages& languages) {
    return JsonObject()
        .add("code", AnsiString(findingText(finding.Kind).code))
        .add("object", finding.Object)
        .add("member", finding.Member)
        .add("expected", finding.Expected)
        .add("found", foundText(finding, languages))
        .add("sentence", findingSentence(finding, languages))
        .text();
}

const WrittenText& textOf(const Written& written) {
    return *std::ranges::find(c_Written, written.Kind, &WrittenText::what);
}

std::string writtenSentence(const Written& written, const Languages& languages) {
    QString sentence = languages.label(textOf(written).sentence);
    sentence.replace(QStringLiteral("%2"), QString::number(written.Count)); // first: names may have a "%2"
    return sentence.replace(QStringLiteral("%1"), QString::fromStdString(written.Object)).toStdString();
}

std::string writtenJson(const Written& written) {
    return JsonObject()
        .add("kind", AnsiString(textOf(written).code))
        .add("object", written.Object)
        .add("count", std::int64_t{written.Count})
        .text();
}

template <typename Rows, typename ToJson>
std::string jsonArray(const Rows& rows, ToJson toJson) {
    std::string array;
    for (const auto& row : rows) {
        array += (array.empty() ? "" : ",") + toJson(row);
    }
    return "[" + array + "]";
}

} // namespace

std::string reportText(const CheckReport& report, const Languages& languages) {
    std::string text;
    for (const Finding& finding : report.findings) {
        text += findingSentence(finding, languages) + '\n';
    }
    for (const Written& written : report.written) {
        text += writtenSentence(written, languages) + '\n';
    }
    if (!report.findings.empty()) {
        text += languages.label(c_Count).arg(report.findings.size()).toStdString() + '\n';
    } else if (report.isComplete) {
        text += languages.text(c_Fits) + '\n';
    }
    return text;
}

std::string reportJson(const CheckReport& report, const Languages& languages) {
    const auto toJson = [&](const Finding& finding) { return findingJson(finding, languages); };
    return JsonObject()
               .add("database", report.database)
               .add("fits", report.isComplete && report.findings.empty())
               .add("complete", report.isComplete)
               .add("exercised", report.isExercised)
               .addJson("findings", jsonArray(report.findings, toJson))
               .addJson("written", jsonArray(report.written, writtenJson))
               .text() +
           '\n';
}

} // namespace refhost
