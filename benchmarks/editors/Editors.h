#pragma once

#include "benchmarks/editors/ClerkConnection.h"
#include "editwin/MelvarkEditorEditWin.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

namespace benchmark {

/// One kind of editor and the long document from which it is filled.
struct EditorKind {
    const char* Name;   ///< "note" or "order".
    const char* Source; ///< The parameter of the fill that names the source.
    const char* Target; ///< The parameter of the closing call that names the document.
    int Columns;
    const char* Typed; ///< The key of the column in which values are committed.
    std::unique_ptr<TEditBox> (*Open)(std::int64_t document);
};

extern const EditorKind c_NoteEditor;
extern const EditorKind c_OrderEditor;

/// Shows the form, as a workflow does, without waiting for its end.
void show(TForm& form);

/// Handles events until what was changed is painted and nothing more is to be painted. Throws std::runtime_error when
/// nothing is painted within a second.
void untilPainted();

} // namespace benchmark
