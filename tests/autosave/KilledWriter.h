#pragma once

#include <functional>

/// Runs the work in a process of its own and kills that at its n-th stop at a system call, counted from 1; each call
/// has two stops, before and after it. True when the work ended before so many.
bool runAndKillAt(int stop, const std::function<void()>& work);
