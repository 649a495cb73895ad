#pragma once

/// In a program that is linked with this, the system calls of files can be told to fail.
namespace failingsystem {

enum class Lasting { Once, FromThenOn };

/// The n-th of these calls, counted from 1, fails with the error; so do all later ones when it lasts.
void failAt(int call, int error, Lasting lasting);
/// All calls succeed again. Whether any has failed.
bool stopFailing();

} // namespace failingsystem
