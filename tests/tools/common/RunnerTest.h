#pragma once

#include "CommandRunner.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// What the tests of the command runner share: the program with named behaviours, a folder.
class RunnerTest : public QObject
{
    Q_OBJECT

protected:
    static Command behaviour(const QStringList &arguments)
    {
        return {QStringLiteral(TOOLVANE_BEHAVIOUR_PROGRAM), arguments};
    }

    static JobDescription description()
    {
        return {QStringLiteral("TestPage"), QStringLiteral("Test"), QStringLiteral("/subject")};
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }

    QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
};

/// Whether a process runs; one that has ended and is only not reaped yet does not.
inline bool processRuns(const QByteArray &pid)
{
    QFile status(QStringLiteral("/proc/%1/stat").arg(QString::fromLatin1(pid)));
    if (!status.open(QIODevice::ReadOnly))
        return false;
    const QByteArray line = status.readAll();
    return line.mid(line.lastIndexOf(')') + 2, 1) != "Z";
}
