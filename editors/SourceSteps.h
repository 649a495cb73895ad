#pragma once

#include <cstddef>
#include <functional>
#include <iterator>

namespace melvark {

/// One way in which an editor gets its lines: what the clerk is asked, and what the database then brings.
template <class Editor>
struct SourceStep {
    void (Editor::*Ask)(); ///< Keeps what was chosen, throws EEditBoxCanceled otherwise; null: nothing to ask.
    void (Editor::*Fill)();
};

/// Takes the way of that number, counted from 1, unless the editor gets its lines from unsaved work. There is one way
/// for each of the edit types. A number that the table lacks asks nothing and fills nothing.
template <const auto& EditTypes, class Editor, std::size_t Count>
void FillFromSource(Editor& editor, const SourceStep<Editor> (&ways)[Count], int number) {
    static_assert(Count == std::size(EditTypes), "each edit type has its way");
    if (number < 1 || static_cast<std::size_t>(number) > Count) {
        return;
    }
    if (editor.RestoreData()) {
        return;
    }
    const SourceStep<Editor>& way = ways[static_cast<std::size_t>(number) - 1];
    if (way.Ask) {
        std::invoke(way.Ask, editor);
    }
    std::invoke(way.Fill, editor);
}

} // namespace melvark
