#include "refhost/dbcheck/CheckReport.h"

#include "refhost/Json.h"
#include "refhost/Languages.h"
#include "refhost/dbcheck/FindingTexts.h"

namespace refhost {

namespace {

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

} // namespace

std::string reportText(const CheckReport& report, const Languages& languages) {
    if (report.findings.empty()) {
        return languages.text(c_Fits) + '\n';
    }
    std::string text;
    for (const Finding& finding : report.findings) {
        text += findingSentence(finding, languages) + '\n';
    }
    return text + languages.label(c_Count).arg(report.findings.size()).toStdString() + '\n';
}

std::string reportJson(const CheckReport& report, const Languages& languages) {
    std::string findings;
    for (const Finding& finding : report.findings) {
        findings += (findings.empty() ? "" : ",") + findingJson(finding, languages);
    }
    return JsonObject()
               .add("database", report.database)
               .add("fits", report.findings.empty())
               .addJson("findings", "[" + findings + "]")
               .text() +
           '\n';
}

} // namespace refhost
