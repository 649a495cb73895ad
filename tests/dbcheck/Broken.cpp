#include "tests/dbcheck/Broken.h"

#include "refhost/Languages.h"
#include "refhost/database/Databases.h"
#include "refhost/dbcheck/FindingTexts.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <ostream>

namespace refhost {

namespace {

std::string newFolder() {
    std::string pattern = (std::filesystem::temp_directory_path() / "melvark-procedures-XXXXXX").string();
    EXPECT_NE(mkdtemp(pattern.data()), nullptr);
    return pattern;
}

} // namespace

std::ostream& operator<<(std::ostream& stream, const Fault& fault) {
    return stream << engineName(fault.On) << ' ' << fault.Name;
}

std::string checkedAddress(Engine engine, const std::string& url) {
    return engine == Engine::SQLite ? url : url + " user=postgres";
}

void runIn(const std::string& address, const std::string& sql) {
    openDatabase(address, "novakova", TFormatSettings::Czech(), OpenMode::Existing)->runScript(sql);
}

BrokenDatabase::BrokenDatabase(const Fault& fault) {
    commandLine_.database = checkedAddress(fault.On, newDatabaseUrl(fault.On));
    commandLine_.user = "novakova";
    if (*fault.Sql != '\0') {
        runIn(commandLine_.database, fault.Sql);
    }
    if (fault.Script != nullptr) {
        commandLine_.procedures = newFolder();
        std::ofstream(commandLine_.procedures + "/" + fault.Procedure + ".sql") << fault.Script;
    }
}

BrokenDatabase::~BrokenDatabase() {
    std::error_code ignored; // the system cleans its temporary folder too
    if (!commandLine_.procedures.empty()) {
        std::filesystem::remove_all(commandLine_.procedures, ignored);
    }
}

std::vector<std::string> sentencesOf(const Findings& findings) {
    static const Languages czech("cs");
    std::vector<std::string> sentences;
    std::ranges::transform(findings, std::back_inserter(sentences), [](Finding finding) {
        if (finding.Kind == FindingKind::CompanyMissing) {
            return finding.Error->Code();
        }
        if (finding.Error && foundText(finding, czech) != finding.Error->Message()) {
            finding.Error.reset();
            finding.Found = "…";
        }
        return findingSentence(finding, czech);
    });
    return sentences;
}

} // namespace refhost
