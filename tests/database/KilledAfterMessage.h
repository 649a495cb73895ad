#pragma once

#include "tests/database/Interruption.h"

namespace refhost {

/// What interruptedAt does on the private server.
Interruption killedAfterMessage(int point, const std::string& url,
                                const std::function<void(const std::string& url)>& work);

} // namespace refhost
