#pragma once

#include <QDir>
#include <QProcess>
#include <QStringList>

/// One finished run of a program, for the tests of the stand-in programs.
struct RunResult {
    int status = -1; ///< -1: killed by a signal, did not start, or took longer than two minutes
    QByteArray output;
    QByteArray errors;

    QList<QByteArray> errorLines() const;
};

/// Full path of a stand-in program in the build tree.
QString standinPath(const QString &name);

/// The environment of this test without what the tests' frame preloads: the sanitizers' runtime does
/// not belong in the distribution's programs that a stand-in starts.
QProcessEnvironment plainEnvironment();

RunResult runProgram(const QString &program, const QStringList &arguments,
                     const QProcessEnvironment &environment = plainEnvironment());

RunResult runStandin(const QString &name, const QStringList &arguments,
                     const QProcessEnvironment &environment = plainEnvironment());

/// A folder's entries, hidden ones too.
QStringList entriesOf(const QDir &folder);

QByteArray contentOf(const QString &path);
void writeFile(const QString &path, const QByteArray &content);

/// Children of a process, by the kernel's own list.
QList<int> childrenOf(qint64 process);
bool isRunning(int process);
