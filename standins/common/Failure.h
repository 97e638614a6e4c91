#pragma once

#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <string>

namespace standin
{

/// What the programs end with. The numbers above 1 are those of sysexits.h.
enum ExitStatus {
    Success = 0,
    Failed = 1,
    UsageWrong = 64, ///< EX_USAGE
    ProgramMissing = 69, ///< EX_UNAVAILABLE
};

/// Ends the program: runProgram() catches it, prints the text as one line after the program's name
/// and exits with the status.
class Failure : public std::runtime_error
{
public:
    Failure(ExitStatus exitStatus, const std::string &text)
        : std::runtime_error(text), status(exitStatus)
    {
    }
    ExitStatus status;
};

/// The arguments are not the ones that the program takes: its usage line and status 64.
class WrongUsage : public std::exception
{
};

/// A message is one line, whatever a file is called: control characters become "?".
inline std::string printable(std::string text)
{
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; };
    std::replace_if(text.begin(), text.end(), isControl, '?');
    return text;
}

/// Throws a Failure with "path: reason" and status 1.
[[noreturn]] inline void fail(const std::string &path, const std::string &reason)
{
    throw Failure(Failed, (path.empty() ? "(no name)" : path) + ": " + reason);
}

/// The same with the system's words for an errno value.
[[noreturn]] inline void failWithError(const std::string &path, int error)
{
    fail(path, std::strerror(error));
}

} // namespace standin
