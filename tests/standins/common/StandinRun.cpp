#include "StandinRun.h"

#include <QFile>

using namespace Qt::StringLiterals;

QList<QByteArray> RunResult::errorLines() const
{
    QList<QByteArray> lines = errors.split('\n');
    lines.removeAll(QByteArray());
    return lines;
}

QString standinPath(const QString &name)
{
    return u"" TOOLVANE_BUILD_DIR "/libexec/toolvane/"_s + name;
}

QProcessEnvironment plainEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(u"LD_PRELOAD"_s);
    return environment;
}

RunResult runProgram(const QString &program, const QStringList &arguments,
                     const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setStandardInputFile(QProcess::nullDevice());
    process.start(program, arguments);
    const bool ended =
        process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit;
    const QByteArray reason = ended ? QByteArray() : process.errorString().toUtf8();
    return {ended ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError() + reason};
}

RunResult runStandin(const QString &name, const QStringList &arguments,
                     const QProcessEnvironment &environment)
{
    return runProgram(standinPath(name), arguments, environment);
}

QStringList entriesOf(const QDir &folder)
{
    return QDir(folder.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qWarning("cannot write %s", qPrintable(path));
}

QList<int> childrenOf(qint64 process)
{
    QList<int> children;
    const QByteArray list = contentOf(u"/proc/%1/task/%1/children"_s.arg(process));
    for (const QByteArray &number : list.simplified().split(' ')) {
        if (!number.isEmpty())
            children << number.toInt();
    }
    return children;
}

// A process that was killed and waits to be reaped does not run any more.
bool isRunning(int process)
{
    const QByteArray line = contentOf(u"/proc/%1/stat"_s.arg(process));
    const qsizetype position = line.lastIndexOf(')') + 2;
    const char state = position < line.size() ? line[position] : '\0';
    return state != '\0' && state != 'Z' && state != 'X';
}
