#pragma once

#include "host/Exceptions.h"

#include <atomic>

namespace refhost {

/// The wish that the call under way ends, uttered on one thread and heard on the one that the call runs on.
class StopSignal {
public:
    void request() { isRequested_ = true; }
    void clear() { isRequested_ = false; }
    bool isRequested() const { return isRequested_; }

private:
    std::atomic<bool> isRequested_ = false;
};

/// A call that ended because its user asked for it: nothing of it has lasted. It is no refusal and has no code; a host
/// does not show it.
class EStopped : public EDatabaseError {
public:
    /// `details` say where the call was.
    explicit EStopped(AnsiString details = {});
    EStopped(const EStopped&) = default;
    EStopped& operator=(const EStopped&) = default;
    ~EStopped() override;
};

} // namespace refhost
