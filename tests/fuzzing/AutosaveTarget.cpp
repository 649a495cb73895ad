#include "editwin/model/AutosaveFile.h"
#include "tests/fuzzing/FuzzTarget.h"

#include <sstream>

namespace {

using namespace melvark;

const std::vector<AnsiString> c_Keys{"SKLADPOL", "MNOZSTVI", "POPIS"};

std::optional<AutosaveContent> read(std::string_view text) {
    std::istringstream in{std::string(text)};
    return ReadAutosave(in, c_Keys);
}

std::string written(const AutosaveContent& content) {
    std::ostringstream out;
    WriteAutosave(out, content.DocumentID, c_Keys, content.Lines);
    return out.str();
}

std::string difference(const AutosaveContent& left, const AutosaveContent& right) {
    if (left.DocumentID != right.DocumentID || left.Lines.GetRowCount() != right.Lines.GetRowCount()) {
        return "another document or number of rows";
    }
    for (int column = 0; column < left.Lines.GetColCount(); ++column) {
        for (int row = 0; row < left.Lines.GetRowCount(); ++row) {
            if (left.Lines.GetCells(column, row) != right.Lines.GetCells(column, row)) {
                return "another cell in column " + std::to_string(column) + ", row " + std::to_string(row);
            }
        }
    }
    return {};
}

/// The header says that there are rows, none being read as an empty one, and names the columns in our order.
bool hasOurHeader(std::string_view input) {
    const std::size_t count = input.find('\n') + 1;
    const std::size_t keys = input.find('\n', count) + 1;
    return input.substr(count, keys - count) != "0\n" && input.substr(keys).starts_with("SKLADPOL\nMNOZSTVI\nPOPIS\n");
}

} // namespace

// What is taken is what a writer wrote: it comes back from being written again, letter for letter where the columns
// stood in this order.
std::string judgeAutosave(std::string_view input) {
    const auto content = read(input);
    if (!content) {
        return {};
    }
    if (content->Lines.GetColCount() != static_cast<int>(c_Keys.size())) {
        return "not as wide as the columns";
    }
    const std::string again = written(*content);
    if (hasOurHeader(input) && again != input) {
        return "written again it reads “" + again + "”";
    }
    const auto twice = read(again);
    return twice ? difference(*content, *twice) : "written again it is refused";
}
