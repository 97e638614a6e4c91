#pragma once

#include <QMetaType>
#include <QString>

/// How a run of a command ended: exactly one of five ways.
class CommandResult
{
public:
    enum class End {
        CouldNotStart, ///< No such program, not executable, or arguments that it cannot be given.
        Exited, ///< By itself, with an exit status.
        Killed, ///< By a signal that we did not send: a crash is never a success.
        Cancelled, ///< Stopped on request while it ran, whatever its status was then.
        OwnerGone, ///< The runner was destroyed. Whoever waited must not touch the page any more.
    };

    static CommandResult couldNotStart(const QString &reason);
    static CommandResult exited(int status);
    static CommandResult killed(int signal);
    static CommandResult cancelled();
    static CommandResult ownerGone();

    End end() const { return m_end; }
    /// The exit status (0 to 255); -1 for every other end.
    int exitStatus() const { return m_end == End::Exited ? m_number : -1; }
    bool couldStart() const { return m_end != End::CouldNotStart; }
    /// True only for an exit with status 0.
    bool succeeded() const { return exitStatus() == 0; }
    /// The end in a few English words on one line, for the log.
    QString description() const;

private:
    CommandResult(End end, int number, const QString &reason);

    End m_end;
    int m_number; ///< Exit status or signal number.
    QString m_reason;
};

Q_DECLARE_METATYPE(CommandResult::End)
