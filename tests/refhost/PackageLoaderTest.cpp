#include "refhost/PackageLoader.h"

#include "host/Exceptions.h"
#include "host/LibraryItem.h"
#include "refhost/Languages.h"
#include "tests/support/RecordingHost.h"

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace refhost {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class PackageLoaderTest : public testing::Test {
protected:
    static std::string plugin(const std::string& name) { return std::string(PLUGIN_FOLDER) + "/" + name + ".so"; }

    std::string refusal(const std::string& file) const {
        try {
            const Package package(file, languages_);
            return "loaded";
        } catch (const EHostError& error) {
            return error.Message();
        }
    }

    QTemporaryDir folder_; // its user's alone
    RecordingHost host_;
    TScopedHost scope_{host_};
    Languages languages_{"cs"};
};

TEST_F(PackageLoaderTest, FindsTheClassByNameAndRunsIt) {
    const Package package(plugin("GoodPlugin"), languages_);
    const auto item = package.createItem("TTestItem", host_.Classes(), nullptr);

    EXPECT_TRUE(item->Execute("yes", nullptr, nullptr));
    EXPECT_FALSE(item->Execute("no", nullptr, nullptr));
}

TEST_F(PackageLoaderTest, FinalizesThePackageAtItsEnd) {
    {
        const Package package(plugin("GoodPlugin"), languages_);
        EXPECT_FALSE(host_.Classes().Contains("TFinalized"));
    }
    EXPECT_TRUE(host_.Classes().Contains("TFinalized"));
}

TEST_F(PackageLoaderTest, AClassThatThePackageLacksIsNamed) {
    const Package package(plugin("GoodPlugin"), languages_);
    try {
        package.createItem("TMelvarkEditor", host_.Classes(), nullptr);
        FAIL() << "created";
    } catch (const EHostError& error) {
        EXPECT_EQ(error.Message(), "Modul „GoodPlugin.so“ neobsahuje třídu TMelvarkEditor.");
    }
}

TEST_F(PackageLoaderTest, AMissingFileIsNamedWithoutItsFolder) {
    EXPECT_EQ(refusal(plugin("Nowhere")), "Modul „Nowhere.so“ nebyl nalezen. Nainstalujte jej znovu vedle programu.");
}

TEST_F(PackageLoaderTest, AFileThatIsNoLibraryIsRefused) {
    const std::string file = folder_.filePath(QStringLiteral("NoLibrary.so")).toStdString();
    std::ofstream(file) << "text";

    EXPECT_THAT(refusal(file), StartsWith("Modul „NoLibrary.so“ nelze načíst. Nainstalujte jej znovu. ("));
}

TEST_F(PackageLoaderTest, AFileThatOthersCanReplaceIsNotLoaded) {
    namespace fs = std::filesystem;
    const fs::path open = folder_.filePath(QStringLiteral("open")).toStdString();
    const fs::path file = open / "GoodPlugin.so";
    fs::create_directory(open);
    fs::copy(plugin("GoodPlugin"), file);
    EXPECT_EQ(refusal(file.string()), "loaded");

    fs::permissions(open, fs::perms::all);
    EXPECT_EQ(refusal(file.string()), "Modul „GoodPlugin.so“ nebyl načten, protože „" + fs::canonical(open).string() +
                                          "“ mohou měnit i jiní uživatelé. Nainstalujte jej znovu, nebo jim to právo "
                                          "odeberte.");
}

TEST_F(PackageLoaderTest, ALibraryThatFitsNoProgramIsRefusedBeforeItRuns) {
    EXPECT_THAT(refusal(plugin("UnboundPlugin")), HasSubstr("nelze načíst"));
}

TEST_F(PackageLoaderTest, ALibraryThatIsNoPackageIsRefused) {
    EXPECT_EQ(refusal(plugin("ForeignLibrary")),
              "Soubor „ForeignLibrary.so“ není modulem tohoto programu: chybí v něm vstupní bod GetPackageInfoTable.");
}

TEST_F(PackageLoaderTest, APackageOfAnotherVersionIsNotInitialized) {
    EXPECT_EQ(refusal(plugin("OldPlugin")),
              "Modul „OldPlugin.so“ je pro jinou verzi programu (0 místo 1). Nainstalujte jeho verzi vydanou s tímto "
              "programem.");
}

TEST_F(PackageLoaderTest, APackageOfAVersionWhoseLibrariesAreMissingIsRefusedForItsVersion) {
    EXPECT_EQ(refusal(plugin("LaterPlugin")),
              "Modul „LaterPlugin.so“ je pro jinou verzi programu (2 místo 1). Nainstalujte jeho verzi vydanou s tímto "
              "programem.");
}

TEST_F(PackageLoaderTest, APackageThatFailsToStartSaysWhyAndIsNotFinalized) {
    EXPECT_EQ(refusal(plugin("FailingPlugin")), "Modul „FailingPlugin.so“ se nepodařilo spustit. (Chybí licence.)");
}

TEST_F(PackageLoaderTest, IsLookedForBesideTheProgramFirstAndThenInTheInstalledTree) {
    const std::filesystem::path root = std::filesystem::path(testing::TempDir()) / "melvark-package-test";
    std::filesystem::remove_all(root);
    std::filesystem::create_directories(root / "bin");
    std::filesystem::create_directories((root / "bin" / MODULE_FOLDER).lexically_normal());
    const std::string program = (root / "bin").string();
    const auto beside = root / "bin/MelvarkEditor.so";
    const auto installed = (root / "bin" / MODULE_FOLDER / "MelvarkEditor.so").lexically_normal();

    EXPECT_EQ(findPackage(program), beside.string()); // nowhere: named beside the program
    std::ofstream(installed.string()) << "x";
    EXPECT_TRUE(std::filesystem::equivalent(findPackage(program), installed));
    std::ofstream(beside.string()) << "x";
    EXPECT_TRUE(std::filesystem::equivalent(findPackage(program), beside));
    std::filesystem::remove_all(root);
}

} // namespace

} // namespace refhost
