#include "host/widgets/Guard.h"
#include "tests/editors/DodakEditorFixture.h"
#include "tests/editors/FewDescriptors.h"
#include "tests/editors/UnsavedWorkFixture.h"

#include <fstream>
#include <sstream>

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr const char* c_Unread = "O#: Nelze přečíst, co tu zbylo z rozepsané práce (systém hlásí: ";
constexpr std::size_t c_DirectoryAndLock = 2;
constexpr const char* c_Held = "O#: Rozepsanou práci z tohoto zdroje průběžně ukládá jiné okno. Práce v tomto okně se "
                               "průběžně neukládá.";

/// What stands in the way of the file of unsaved work, on the real form.
class WorkInTheWay : public UnsavedWorkFixture {
protected:
    WorkInTheWay() { scriptDodakEditor(host_.connection); }

    std::unique_ptr<TDodakEditBox> open() { return std::make_unique<TDodakEditBox>(qApp, &manager_, "SABLONA", 7, 40); }
    std::unique_ptr<TDodakEditBox> openWithDescriptors(std::size_t free) {
        const FewDescriptors few(free);
        return open();
    }
    static void tick(TEditBox& editor) {
        melvark::Guarded([&] { editor.AutoSave(nullptr); });
    }
    /// Types into the second line and has columns laid out between ticks, as in any session.
    static void work(TEditBox& editor) {
        QTest::qWait(0); // what is told at the first show has been told by then
        type(editor, "");
        type(editor, "");
        type(editor, "");
        ASSERT_EQ(openAt(editor), "MNOZSTVI in row 2");
        type(editor, "7");
        tick(editor);
        editor.ApplyColumnsSettingsToGrid();
        tick(editor);
        tick(editor);
    }
    bool isTold(std::size_t count) {
        return QTest::qWaitFor([&] { return manager_.messages().size() == count; });
    }
    /// Works in the editor while another one holds the file, which stays as that one wrote it.
    void expectToldOnceThatItIsHeld(TDodakEditBox& editor) {
        const AnsiString before = textOf(file_);
        showAnd(editor, [&] {
            work(editor);
            ASSERT_TRUE(isTold(1));
            tick(editor);
            QTest::qWait(0);
        });
        EXPECT_THAT(manager_.messages(), testing::ElementsAre(c_Held));
        EXPECT_EQ(textOf(file_), before);
    }
    static AnsiString textOf(const std::filesystem::path& file) {
        std::ostringstream text;
        text << std::ifstream(file).rdbuf();
        return text.str();
    }

    const std::filesystem::path file_ = fileOf("DODAK", "SABLONA");
    const AnsiString unsaved_ = fileText(7, dodakKeys(), {{{"SKLADPOL", "Máslo"}, {"MNOZSTVI", "1,5"}}});
};

/// While the process can open hardly any file more.
class WithFewDescriptors : public WorkInTheWay {
protected:
    void SetUp() override {
#ifdef __SANITIZE_ADDRESS__
        GTEST_SKIP()
            << "the sanitizer looks at an object's type through a pipe and takes a failing one for a wrong type";
#endif
        WorkInTheWay::SetUp();
    }
};

// The system gives none, one or two of the three files that an editor opens: directory, lock, content. Without the
// first two it is a fault of keeping the work, which a tick tells.
class UnreadWork : public WithFewDescriptors, public testing::WithParamInterface<std::size_t> {};

TEST_P(UnreadWork, StaysWhateverTheClerkDoesAndIsToldOnce) {
    leave(file_, unsaved_);
    auto editor = openWithDescriptors(GetParam());
    EXPECT_EQ(stored(*editor, 1, "SKLADPOL"), "Mléko") << "the source's first line";
    showAnd(*editor, [&] {
        work(*editor);
        QTest::qWait(0);
    });
    if (GetParam() == c_DirectoryAndLock) {
        EXPECT_THAT(manager_.messages(), ElementsAre(StartsWith(c_Unread)));
    } else {
        EXPECT_THAT(manager_.messages(), IsEmpty());
        expectedErrors_ = {"Rozepsaná práce se průběžně neukládá (je tam starší rozepsaná práce, kterou nebylo možné "
                           "přečíst): „" +
                           file_.string() + "“. Uložte ji raději hned."};
    }
    EXPECT_THAT(manager_.boxes(), IsEmpty());
    editor.reset();
    EXPECT_EQ(textOf(file_), unsaved_);
    EXPECT_EQ(listing(), file_.filename());
    EXPECT_EQ(stored(*open(), 1, "SKLADPOL"), "Máslo") << "the next opening";
}

INSTANTIATE_TEST_SUITE_P(Descriptors, UnreadWork, testing::Values(0U, 1U, c_DirectoryAndLock));

TEST_F(WithFewDescriptors, ThreeDescriptorsAreEnoughToTakeItUp) {
    leave(file_, unsaved_);
    EXPECT_EQ(stored(*openWithDescriptors(3), 1, "SKLADPOL"), "Máslo");
}

TEST_F(WithFewDescriptors, WithoutAnyTheEditorKeepsItsOwnAsSoonAsItCan) {
    const auto editor = openWithDescriptors(0);
    showAnd(*editor, [&] {
        work(*editor);
        EXPECT_EQ(listing(), file_.filename());
    });
    EXPECT_THAT(manager_.messages(), IsEmpty());
}

TEST_F(WithFewDescriptors, AFileThatIsFoundHeldAtALaterTickIsToldOnce) {
    const auto late = openWithDescriptors(0);
    const auto holder = open();
    tick(*holder);
    expectToldOnceThatItIsHeld(*late);
}

TEST_F(WorkInTheWay, AFileThatWasTakenWithItsDirectoryIsToldOnce) {
    const auto first = open();
    tick(*first);
    std::filesystem::remove_all(file_.parent_path());
    const auto second = open();
    tick(*second);
    expectToldOnceThatItIsHeld(*first);
}

/// A link to a file of the clerk's, under one of the names.
struct Link {
    const char* suffix;
    std::size_t errors; ///< How many are shown.
    const char* what;
};

class PlantedLink : public WorkInTheWay, public testing::WithParamInterface<Link> {
protected:
    PlantedLink() { leave(target_, "the clerk's own"); }
    ~PlantedLink() override { std::filesystem::remove(target_); }

    const std::filesystem::path target_ = file_.parent_path().string() + "-target";
    const std::filesystem::path link_ = file_.string() + GetParam().suffix;
};

TEST_P(PlantedLink, IsNeitherFollowedNorReplacedAndIsToldOnce) {
    auto editor = open();
    tick(*editor);
    std::filesystem::remove(link_);
    std::filesystem::create_symlink(target_, link_);
    showAnd(*editor, [&] { work(*editor); });
    editor.reset();
    EXPECT_EQ(std::filesystem::read_symlink(link_), target_);
    EXPECT_EQ(textOf(target_), "the clerk's own");
    EXPECT_THAT(host_.errors(), SizeIs(GetParam().errors));
    for (const AnsiString& error : host_.errors()) {
        EXPECT_THAT(error, HasSubstr("místo souboru je tam odkaz, složka nebo něco cizího"));
    }
    expectedErrors_ = host_.errors();
}

// With a foreign copy the content cannot be set aside: it stays under its own name, and nothing fails.
INSTANTIATE_TEST_SUITE_P(Names, PlantedLink,
                         testing::Values(Link{"", 1, "File"}, Link{".new", 1, "NewFile"}, Link{".kept", 0, "Copy"}),
                         [](const auto& row) { return row.param.what; });

TEST_F(WorkInTheWay, ALinkInPlaceOfTheLockIsToldOnce) {
    const std::filesystem::path target = file_.parent_path().string() + "-target";
    leave(file_, unsaved_);
    std::filesystem::create_symlink(target, file_.string() + ".lock");
    const auto editor = open();
    showAnd(*editor, [&] { work(*editor); });
    ASSERT_THAT(host_.errors(), ElementsAre(HasSubstr("místo souboru je tam odkaz")));
    expectedErrors_ = host_.errors();
    EXPECT_FALSE(std::filesystem::exists(target));
    EXPECT_EQ(textOf(file_), unsaved_);
}

} // namespace
