#pragma once

#include "Failure.h"

#include <string>

/// The exit statuses of `unzip` that mean the same here.
enum UnzipStatus {
    SomethingLeftOut = 1,
    Damaged = 3,
    NoMemory = 4,
    NoArchive = 9,
    PartsOverlap = 12,
    NoRoom = 50,
    MethodUnknown = 81,
    PasswordNeeded = 82,
};

/// Ends the run with this status and the line "unzip: path: why".
[[noreturn]] inline void failAs(UnzipStatus status, const std::string &path, const std::string &why)
{
    throw standin::Failure(static_cast<standin::ExitStatus>(status), path + ": " + why);
}
