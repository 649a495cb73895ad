#pragma once

#include <sys/resource.h>
#include <vector>

/// For its scope the process can open only so many files more: the next one fails as on a busy system, for everybody.
class FewDescriptors {
public:
    explicit FewDescriptors(std::size_t free);
    FewDescriptors(const FewDescriptors&) = delete;
    FewDescriptors& operator=(const FewDescriptors&) = delete;
    ~FewDescriptors();

private:
    rlimit before_{};
    std::vector<int> taken_;
};
