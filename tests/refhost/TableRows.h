#pragma once

#include "host/LibraryManager.h"
#include "refhost/database/RowReader.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <utility>

/// The rows of a table as a query brings them.
class TableRows : public refhost::RowReader {
public:
    /// `beforeFetch` is called with the number of rows that were fetched so far; it may throw.
    explicit TableRows(TResultTable table, std::function<void(std::size_t)> beforeFetch = {})
        : table_(std::move(table)), beforeFetch_(std::move(beforeFetch)) {}

    const std::vector<AnsiString>& columns() const override { return table_.Columns; }

protected:
    Rows fetch(std::size_t most) override {
        if (beforeFetch_) {
            beforeFetch_(fetched_);
        }
        const auto begin = std::next(table_.Rows.begin(), static_cast<std::ptrdiff_t>(fetched_));
        const std::size_t count = std::min(most, table_.Rows.size() - fetched_);
        fetched_ += count;
        return {begin, std::next(begin, static_cast<std::ptrdiff_t>(count))};
    }
    void release() noexcept override {}

private:
    TResultTable table_;
    std::function<void(std::size_t)> beforeFetch_;
    std::size_t fetched_ = 0;
};

inline std::shared_ptr<refhost::RowReader> rowsOf(TResultTable table) {
    return std::make_shared<TableRows>(std::move(table));
}

/// "DL-4 (104)": what was shown of the picked row, and its key.
inline std::string shownPick(const std::optional<TLookupPick>& pick) {
    return pick ? pick->Display + " (" + pick->Key + ")" : "nothing";
}
