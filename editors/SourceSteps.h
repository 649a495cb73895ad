#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <type_traits>

namespace melvark {

/// One way in which an editor gets its lines: what the clerk is asked, and what the database then brings.
template <class Editor>
struct SourceStep {
    void (Editor::*Ask)(); ///< Keeps what was chosen, throws EEditBoxCanceled otherwise; null: nothing to ask.
    void (Editor::*Fill)();
};

/// Takes the way of that number, counted from 1, unless the editor gets its lines from unsaved work. A number that the
/// table lacks asks nothing and fills nothing.
template <class Editor>
void FillFromSource(Editor& editor, std::type_identity_t<std::span<const SourceStep<Editor>>> ways, int number) {
    if (number < 1 || static_cast<std::size_t>(number) > ways.size()) {
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
