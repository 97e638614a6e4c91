#pragma once

#include "Failure.h"

#include <string>

/// The exit statuses of `zip` that mean the same here.
enum ZipStatus {
    NoMemory = 4,
    NothingToDo = 12,
    NoRoom = 14, ///< or another error while the archive is written
    CannotCreate = 15,
    SomethingMissing = 18,
};

/// Ends the run with this status and the line "zip: path: why".
[[noreturn]] inline void failAs(ZipStatus status, const std::string &path, const std::string &why)
{
    throw standin::Failure(static_cast<standin::ExitStatus>(status), path + ": " + why);
}
