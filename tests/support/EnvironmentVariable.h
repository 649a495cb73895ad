#pragma once

#include <cstdlib>
#include <optional>
#include <string>

/// Sets an environment variable, or takes it away, for its scope.
class EnvironmentVariable {
public:
    /// `value` is null for a variable that is not set.
    EnvironmentVariable(const char* name, const char* value) : name_(name) {
        if (const char* const before = std::getenv(name)) {
            before_ = before;
        }
        set(value);
    }
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
    ~EnvironmentVariable() { set(before_ ? before_->c_str() : nullptr); }

private:
    void set(const char* value) { value ? setenv(name_, value, 1) : unsetenv(name_); }

    const char* name_;
    std::optional<std::string> before_;
};
