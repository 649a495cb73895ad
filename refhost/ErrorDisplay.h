#pragma once

#include <exception>
#include <iosfwd>
#include <string>

namespace refhost {

class Languages;

/// An error as it is shown: a sentence for the clerk, and what an administrator needs.
struct ErrorReport {
    std::string sentence;
    std::string details;   ///< Lines; empty when there is nothing to add.
    std::string code = {}; ///< The database's code of a refusal or failure; empty when there is none.
};

/// Puts an exception into words. A database refusal is shown in the user's language when the catalogues have it
/// (translateRefusal); its own sentence then goes to the details. One that is about a line names it in front.
ErrorReport describeError(const std::exception_ptr& error, const Languages& languages);

/// Where errors are shown. The host has one of them.
class ErrorDisplay {
public:
    ErrorDisplay() = default;
    ErrorDisplay(const ErrorDisplay&) = delete;
    ErrorDisplay& operator=(const ErrorDisplay&) = delete;
    virtual ~ErrorDisplay();

    virtual void show(const ErrorReport& report) = 0;
};

/// The display of commands without windows: the sentence and then the details on a stream.
class StreamErrorDisplay : public ErrorDisplay {
public:
    explicit StreamErrorDisplay(std::ostream& stream);
    void show(const ErrorReport& report) override;

private:
    std::ostream& stream_;
};

} // namespace refhost
