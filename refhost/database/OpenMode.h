#pragma once

namespace refhost {

/// What opening a database may do to it. A database file that is not there yet is made (empty, without a schema) or
/// refused; a server's database is always expected to be there. One that is opened for reading only stays as it is,
/// whatever is called in it.
enum class OpenMode { Existing, Create, ReadingOnly };

} // namespace refhost
