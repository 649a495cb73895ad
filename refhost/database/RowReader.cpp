#include "refhost/database/RowReader.h"

#include <algorithm>
#include <iterator>

namespace refhost {

namespace {

constexpr std::size_t c_Portion = 1000;

} // namespace

RowReader::~RowReader() = default;

RowReader::Rows RowReader::read(std::size_t most) {
    if (failure_) {
        std::rethrow_exception(failure_);
    }
    if (isOpen_) {
        return fetchWhileOpen(most);
    }
    const auto end = std::next(taken_.begin(), static_cast<std::ptrdiff_t>(std::min(most, taken_.size())));
    Rows rows(std::make_move_iterator(taken_.begin()), std::make_move_iterator(end));
    taken_.erase(taken_.begin(), end);
    return rows;
}

void RowReader::takeRest() {
    try {
        while (isOpen_) {
            std::ranges::move(fetchWhileOpen(c_Portion), std::back_inserter(taken_));
        }
    } catch (const std::exception&) {
        // Whoever reads hears of it: fetchWhileOpen has kept it.
    }
}

RowReader::Rows RowReader::fetchWhileOpen(std::size_t most) {
    try {
        Rows rows = fetch(most);
        if (rows.size() < most) {
            isOpen_ = false;
            release();
        }
        return rows;
    } catch (...) {
        failure_ = std::current_exception();
        isOpen_ = false;
        release();
        throw;
    }
}

void ReadingUnderWay::end() {
    if (const std::shared_ptr<RowReader> reader = reader_.lock()) {
        reader->takeRest();
    }
}

} // namespace refhost
