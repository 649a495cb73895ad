#pragma once

#include "host/Connection.h"

#include <cstddef>
#include <deque>
#include <exception>
#include <memory>
#include <utility>
#include <vector>

namespace refhost {

/// The rows of one query, a portion at a time, as the database stood when it was opened. For a list whose first rows
/// are wanted before the last ones are known; everything else asks for the whole (TConnection::Query).
///
/// Made by Database::openRows; must not outlive the connection.
class RowReader {
public:
    using Rows = std::vector<std::vector<TDbValue>>;

    RowReader() = default;
    RowReader(const RowReader&) = delete;
    RowReader& operator=(const RowReader&) = delete;
    virtual ~RowReader();

    /// Upper-case names, known before any row is read.
    virtual const std::vector<AnsiString>& columns() const = 0;

    /// The next rows: `most` of them, fewer only at the end. Throws EDatabaseError, and then at every further call.
    Rows read(std::size_t most);

    /// Reads the rest, which read() goes on to bring, so that the connection is free for other work. An error is kept
    /// for read().
    void takeRest();

protected:
    /// As read(), which calls it no more after the end or an error.
    virtual Rows fetch(std::size_t most) = 0;
    /// Gives up what the reading holds of the connection; after the end or an error.
    virtual void release() noexcept = 0;

private:
    Rows fetchWhileOpen(std::size_t most);

    bool isOpen_ = true;
    std::deque<std::vector<TDbValue>> taken_;
    std::exception_ptr failure_;
};

/// The reading that a connection has under way, of which there is one at most.
class ReadingUnderWay {
public:
    void begin(std::weak_ptr<RowReader> reader) { reader_ = std::move(reader); }
    /// Frees the connection for other work. The reader brings the rest all the same.
    void end();

private:
    std::weak_ptr<RowReader> reader_;
};

} // namespace refhost
