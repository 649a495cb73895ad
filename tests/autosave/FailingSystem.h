#pragma once

/// In a program that is linked with this, the system calls of files can be told to fail.
namespace failingsystem {

enum class Lasting { Once, FromThenOn };

/// The n-th of these calls, counted from 1, fails with the error; so do all later ones when it lasts.
void failAt(int call, int error, Lasting lasting);
/// All calls succeed again. Whether any has failed.
bool stopFailing();

/// While it lives, each read and write takes only half of what it could.
class ShortCalls {
public:
    ShortCalls();
    ShortCalls(const ShortCalls&) = delete;
    ShortCalls& operator=(const ShortCalls&) = delete;
    ~ShortCalls();

    /// How many took less than was asked for.
    int count() const;
};

} // namespace failingsystem
