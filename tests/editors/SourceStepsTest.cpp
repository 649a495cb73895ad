#include "editors/SourceSteps.h"

#include <array>
#include <gmock/gmock.h>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct Editor {
    bool RestoreData() { return hasUnsavedWork; }
    void AskForOrder() { done.emplace_back("ask for an order"); }
    void AskAndCancel() { throw std::runtime_error("Canceled"); }
    void FillFromOrder() { done.emplace_back("fill from the order"); }
    void FillFromTemplate() { done.emplace_back("fill from the template"); }

    bool hasUnsavedWork = false;
    std::vector<std::string> done;
};

constexpr std::array<std::string_view, 3> c_EditTypes{"ORDER", "TEMPLATE", "NOTE"};

constexpr melvark::SourceStep<Editor> c_Ways[] = {
    {&Editor::AskForOrder, &Editor::FillFromOrder},
    {nullptr, &Editor::FillFromTemplate},
    {&Editor::AskAndCancel, &Editor::FillFromOrder},
};

TEST(SourceSteps, AskBeforeTheyFill) {
    Editor editor;
    melvark::FillFromSource<c_EditTypes>(editor, c_Ways, 1);
    EXPECT_THAT(editor.done, ElementsAre("ask for an order", "fill from the order"));
}

TEST(SourceSteps, AskNothingWhereNothingIsToBeAsked) {
    Editor editor;
    melvark::FillFromSource<c_EditTypes>(editor, c_Ways, 2);
    EXPECT_THAT(editor.done, ElementsAre("fill from the template"));
}

TEST(SourceSteps, FillNothingOnceTheClerkHasCancelled) {
    Editor editor;
    EXPECT_THROW(melvark::FillFromSource<c_EditTypes>(editor, c_Ways, 3), std::runtime_error);
    EXPECT_THAT(editor.done, IsEmpty());
}

TEST(SourceSteps, AskAndFillNothingWhereUnsavedWorkIsTakenUp) {
    for (const int number : {1, 2, 3}) {
        Editor editor{.hasUnsavedWork = true, .done = {}};
        melvark::FillFromSource<c_EditTypes>(editor, c_Ways, number);
        EXPECT_THAT(editor.done, IsEmpty()) << number;
    }
}

TEST(SourceSteps, DoNothingForANumberThatTheTableLacks) {
    for (const int number : {-1, 0, 4}) {
        Editor editor;
        melvark::FillFromSource<c_EditTypes>(editor, c_Ways, number);
        EXPECT_THAT(editor.done, IsEmpty()) << number;
    }
}

} // namespace
