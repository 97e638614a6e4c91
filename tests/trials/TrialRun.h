#pragma once

#include <QByteArray>
#include <QMap>
#include <QStringList>

#include <sys/types.h>

/// One run of a program that a trial ends early. Whatever the program leaves running becomes a
/// child of this process, so that it is seen. One run at a time.
class TrialRun
{
public:
    using Variables = QMap<QString, QString>;

    /// Starts the program with these variables on top of this process's own.
    TrialRun(const QStringList &command, const Variables &variables, const QString &logFile);
    ~TrialRun(); ///< Kills what still runs.
    Q_DISABLE_COPY_MOVE(TrialRun)

    /// Waits until the program writes to standard output, or ends.
    void awaitOutput();
    void send(int signal) const;
    /// Waits for the program alone; its status as a shell shows it.
    int awaitEnd();
    /// Waits a few seconds for everything that the program started; false when something runs on.
    bool isAlone() const;

    /// Standard output, once the program has ended, then standard error.
    QByteArray words();

private:
    pid_t m_process = -1;
    int m_output = -1;
    QString m_logFile;
    QByteArray m_read;
};
