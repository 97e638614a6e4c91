#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What to run, as a plain value: a page builds it in a function without side effects, so that a
/// test can read the argument list without starting anything.
struct Command {
    /// Absolute path of the program. A program of the same name that comes with the application
    /// runs in its place (see programPath()).
    QString launchPath;
    /// Passed one by one, byte for byte in UTF-8; no shell sees them.
    QStringList arguments;
    /// None: the application's own. A folder that cannot be entered makes the run fail with a
    /// non-zero status; the program is then not run at all.
    std::optional<QString> workingDirectory = std::nullopt;

    bool operator==(const Command &) const = default;
};
