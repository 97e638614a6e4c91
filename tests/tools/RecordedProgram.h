#pragma once

#include "Command.h"
#include "Files.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <optional>

/// The test's view of a program that a page runs: puts RecordingProgram.sh in its place, in the
/// folder of the application's own programs. So the test's program must be in a tree of its own,
/// see PageTests.cmake. What an earlier test left is removed.
class RecordedProgram
{
public:
    explicit RecordedProgram(const char *name)
        : m_path(qEnvironmentVariable("TOOLVANE_TEST_SANDBOX") + QLatin1Char('/')
                 + QLatin1String(name))
    {
        for (const char *suffix : {".arguments", ".hold", ".status"})
            QFile::remove(m_path + QLatin1String(suffix));
        const QString script =
            QStringLiteral(TOOLVANE_SOURCE_DIR "/tests/tools/RecordingProgram.sh");
        const QString program = ownProgramsFolder() + QLatin1Char('/') + QLatin1String(name);
        QDir().mkpath(ownProgramsFolder());
        QFile::link(script, program); // fails if another test was faster
        if (QFileInfo(program).canonicalFilePath() != QFileInfo(script).canonicalFilePath())
            qFatal("%s is not replaced", name);
    }
    ~RecordedProgram() { release(); }
    Q_DISABLE_COPY_MOVE(RecordedProgram)

    /// From now on the program ends with this status.
    void endWith(int status)
    {
        Files::write(m_path + QLatin1String(".status"), QByteArray::number(status));
    }
    /// From now on the program does not end before release().
    void hold() { Files::write(m_path + QLatin1String(".hold"), {}); }
    void release() { QFile::remove(m_path + QLatin1String(".hold")); }

    /// What the program was last started with; none when it has not run.
    std::optional<QStringList> arguments() const
    {
        const QString path = m_path + QLatin1String(".arguments");
        if (!QFile::exists(path))
            return std::nullopt;
        const QStringList texts = QString::fromUtf8(Files::read(path)).split(QChar::Null);
        return texts.first(texts.size() - 1); // each is followed by a null character
    }

private:
    QString m_path;
};
