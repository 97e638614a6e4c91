#pragma once

#include "Command.h"

/// How the Unzip page uses the system's unzip program. Everything here is free of side effects.
namespace UnzipCommand
{

/// The new folder for an archive's contents: named like the archive without the last four
/// characters, which are meant to be ".zip" but are removed whatever they are. Relative when no
/// output folder is given. None when the archive's file name is shorter than four characters.
std::optional<QString> destination(const QString &archive, const QString &outputFolder);

/// Extracts the archive into the destination.
Command extract(const QString &archive, const QString &destination);

} // namespace UnzipCommand
