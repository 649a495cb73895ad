#include "editwin/model/AutosaveFile.h"

#include "editwin/model/AutosaveCell.h"
#include "editwin/model/AutosaveErrors.h"
#include "editwin/model/LineReader.h"

#include <algorithm>
#include <charconv>
#include <istream>
#include <ostream>
#include <utility>
#include <vector>

namespace melvark {

namespace {

/// Gathers lines and hands them to a stream in blocks.
class LineWriter {
public:
    explicit LineWriter(std::ostream& out) : FOut(out) { FText.reserve(2 * c_Block); }

    void Write(std::string_view line) {
        FText += line;
        EndLine(line.size());
    }
    /// So many cells, of which the texts are the first, the others empty. Nearly all cells stand as they are: so each
    /// block is written so and looked at as a whole afterwards, and only one that holds others is written again, cell
    /// by cell.
    void WriteColumn(std::span<const AnsiString> texts, int rowCount) {
        while (!texts.empty()) {
            const std::size_t start = FText.size();
            std::size_t count = 0;
            bool isPlain = true;
            for (; count < texts.size() && FText.size() < c_Block; ++count) {
                const AnsiString& cell = texts[count];
                isPlain = isPlain && cell.size() <= c_LongestAutosaveLine && !cell.starts_with(c_AutosaveMarker);
                FText += cell;
                FText += '\n';
                --rowCount;
            }
            if (!isPlain || !AreAutosaveLines(std::string_view(FText).substr(start), count)) {
                FText.resize(start);
                std::ranges::for_each(texts.first(count), [this](const AnsiString& cell) { WriteCell(cell); });
            }
            FlushBlock();
            texts = texts.subspan(count);
        }
        for (; rowCount > 0; --rowCount) {
            FText += '\n';
            FlushBlock();
        }
    }
    void Flush() {
        FOut.write(FText.data(), static_cast<std::streamsize>(FText.size()));
        FText.clear();
    }

private:
    static constexpr std::size_t c_Block = std::size_t{64} * 1024;

    void WriteCell(std::string_view cell) {
        const std::size_t before = FText.size();
        AppendAutosaveCell(FText, cell);
        EndLine(FText.size() - before);
    }
    void EndLine(std::size_t length) {
        if (length > c_LongestAutosaveLine) {
            throw AutosaveTooLarge();
        }
        FText += '\n';
        FlushBlock();
    }
    void FlushBlock() {
        if (FText.size() >= c_Block) {
            Flush();
        }
    }

    std::ostream& FOut;
    AnsiString FText;
};

/// A line that is a decimal integer and nothing else.
std::optional<std::int32_t> Integer(std::optional<std::string_view> line) {
    std::int32_t value = 0;
    if (!line || std::from_chars(line->data(), line->data() + line->size(), value).ec != std::errc() ||
        std::to_string(value) != *line) {
        return std::nullopt;
    }
    return value;
}

/// The data column of each block of cells, by the key lines; nothing when they are not just these keys.
std::optional<std::vector<int>> ReadColumns(LineReader& reader, std::span<const AnsiString> keys) {
    std::vector<int> columns;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const auto line = reader.Next();
        const auto found = line ? std::ranges::find(keys, *line) : keys.end();
        const int column = static_cast<int>(found - keys.begin());
        if (found == keys.end() || std::ranges::find(columns, column) != columns.end()) {
            return std::nullopt;
        }
        columns.push_back(column);
    }
    return columns;
}

/// The cells of a column, as far as there are any; nothing when a line is missing or is no cell's.
///
/// `reserved` rows are known to be there. Empty cells take no memory before the next one that is not: what only claims
/// a million rows, or has as many empty ones, takes little.
std::optional<std::vector<AnsiString>> ReadColumn(LineReader& reader, int rowCount, int reserved) {
    std::vector<AnsiString> cells;
    for (int row = 0; row < rowCount; ++row) {
        const auto line = reader.Next();
        auto cell = line ? AutosaveCell(*line) : std::nullopt;
        if (!cell) {
            return std::nullopt;
        }
        if (!cell->empty()) {
            if (cells.empty()) {
                cells.reserve(static_cast<std::size_t>(reserved));
            }
            cells.resize(static_cast<std::size_t>(row));
            cells.push_back(std::move(*cell));
        }
    }
    return cells;
}

/// False when a line is missing or is no cell's, or when there are more.
bool ReadCells(LineReader& reader, std::span<const int> columns, int rowCount, TDataGrid& lines) {
    int reserved = 0;
    for (const int column : columns) {
        auto cells = ReadColumn(reader, rowCount, reserved);
        if (!cells) {
            return false;
        }
        cells->shrink_to_fit();
        lines.FillColumn(column, std::move(*cells));
        reserved = rowCount;
    }
    return reader.IsAtEnd();
}

} // namespace

std::vector<AnsiString> AutosaveKeys(std::span<const RColumn> defaultColumns) {
    std::vector<AnsiString> keys(defaultColumns.size());
    for (const RColumn& column : defaultColumns) {
        keys.at(static_cast<std::size_t>(column.DataColumn)) = column.Name;
    }
    return keys;
}

void WriteAutosave(std::ostream& out, std::int32_t documentId, std::span<const AnsiString> keys,
                   const TDataGrid& lines) {
    if (lines.GetRowCount() > c_MostAutosaveRows) {
        throw AutosaveTooLarge();
    }
    LineWriter writer(out);
    writer.Write(std::to_string(documentId));
    writer.Write(std::to_string(lines.GetRowCount()));
    for (const AnsiString& key : keys) {
        writer.Write(key);
    }
    for (int column = 0; column < static_cast<int>(keys.size()); ++column) {
        writer.WriteColumn(lines.ColumnTexts(column), lines.GetRowCount());
    }
    writer.Flush();
}

std::optional<AutosaveContent> ReadAutosave(std::istream& in, std::span<const AnsiString> keys) {
    LineReader reader(*in.rdbuf(), c_LongestAutosaveLine);
    const auto documentId = Integer(reader.Next());
    const auto rowCount = documentId ? Integer(reader.Next()) : std::nullopt;
    if (!rowCount || *rowCount < 0 || *rowCount > c_MostAutosaveRows) {
        return std::nullopt;
    }
    const auto columns = ReadColumns(reader, keys);
    AutosaveContent content{.DocumentID = *documentId, .Lines = {}};
    content.Lines.SetColCount(static_cast<int>(keys.size()));
    content.Lines.SetRowCount(*rowCount);
    if (!columns || !ReadCells(reader, *columns, *rowCount, content.Lines)) {
        return std::nullopt;
    }
    return content;
}

} // namespace melvark
