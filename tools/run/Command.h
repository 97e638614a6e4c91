#pragma once

#include "Job.h"

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
};

/// How a run of a command ended: exactly one of five ways.
struct CommandResult {
    enum class End {
        /// No such program, not executable, or arguments that it cannot be given; or one of our own
        /// programs does not find the system's program that does its work.
        CouldNotStart,
        Exited, ///< By itself, with an exit status.
        Killed, ///< By a signal that we did not send: a crash is never a success.
        Cancelled, ///< Stopped on request while it ran, whatever its status was then.
        OwnerGone, ///< The runner was destroyed. Whoever waited must not touch the page any more.
    };

    End end;
    int number = 0; ///< The exit status, 0 to 255, or the number of the signal.
    QString reason = {}; ///< Why it could not start.

    bool couldStart() const { return end != End::CouldNotStart; }
    /// True only for an exit with status 0.
    bool succeeded() const { return end == End::Exited && number == 0; }
    JobOutcome outcome() const;
    /// The end in a few English words on one line, for the log.
    QString description() const;
};

/// `../libexec/toolvane` beside the application's own binary, in the build tree as when installed.
/// No environment variable changes it: whoever starts the application cannot swap its programs.
QString ownProgramsFolder();

/// The program that really runs for a launch path: the executable file of the same name in
/// `folder` if there is one, otherwise the path as given.
QString programPath(const QString &launchPath, const QString &folder = ownProgramsFolder());

/// Whether the program, which programPath() gave, is one of ours that writes how far it is to the
/// descriptor that TOOLVANE_PROGRESS_FD names. Nothing else is ever given that variable.
bool reportsProgress(const QString &program, const QString &folder = ownProgramsFolder());
