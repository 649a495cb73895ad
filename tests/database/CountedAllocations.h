#pragma once

#include <functional>

namespace refhost {

/// How often the work asks for memory in C++. A test program that has this counts all its life.
long allocationsOf(const std::function<void()>& work);

} // namespace refhost
