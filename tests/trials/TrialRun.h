#pragma once

#include <QMap>
#include <QProcess>

/// One run of a program that a trial ends early. Whatever the program leaves running becomes a
/// child of this process, so that it is seen. One run at a time.
class TrialRun
{
public:
    using Variables = QMap<QString, QString>;

    /// Starts the program with these variables on top of this process's own.
    TrialRun(const QStringList &command, const Variables &variables);
    ~TrialRun(); ///< Kills what still runs.
    Q_DISABLE_COPY_MOVE(TrialRun)

    /// Waits until the program writes to standard output, or ends.
    void awaitOutput() { m_process.waitForReadyRead(-1); }
    void send(int signal) const;
    /// Waits for the program alone; its status as a shell shows it.
    int awaitEnd();
    /// Waits a few seconds for everything that the program started; false when something runs on.
    static bool isAlone();

    /// Standard output, then standard error, of a program that has ended.
    QByteArray words();

private:
    QProcess m_process;
};
