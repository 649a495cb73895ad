#pragma once

#include "host/Types.h"

#include <optional>
#include <streambuf>
#include <string_view>
#include <vector>

namespace melvark {

/// Takes a stream apart into lines that end with LF. It holds one block of the stream and one line, however long the
/// stream or its lines are.
class LineReader {
public:
    /// The source must outlive the reader. A line longer than `longest` bytes is refused before it is read.
    LineReader(std::streambuf& source, std::size_t longest);

    /// The next line without its end; it holds until the next call. Nothing when the stream is at its end, the line has
    /// no end, or it is too long; then there is nothing more to be had. What the source throws passes through.
    std::optional<std::string_view> Next();

    /// Whether every byte was taken.
    bool IsAtEnd();

private:
    bool Refill();

    std::streambuf& FSource;
    std::size_t FLongest;
    std::vector<char> FBlock;
    std::string_view FRest; ///< What of the block was not taken yet.
    AnsiString FCarried;    ///< The front of a line that goes on in the next block.
};

} // namespace melvark
