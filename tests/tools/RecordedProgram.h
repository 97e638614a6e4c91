#pragma once

#include <QFile>
#include <QStringList>

#include <optional>

/// The test's view of a program that a page runs in a tree where RecordingProgram.sh stands in for
/// it. What an earlier test left is removed.
class RecordedProgram
{
public:
    explicit RecordedProgram(const char *name)
        : m_path(qEnvironmentVariable("TOOLVANE_TEST_SANDBOX") + QLatin1Char('/')
                 + QLatin1String(name))
    {
        for (const char *suffix : {".arguments", ".hold", ".status"})
            QFile::remove(m_path + QLatin1String(suffix));
    }
    ~RecordedProgram() { release(); }
    Q_DISABLE_COPY_MOVE(RecordedProgram)

    /// From now on the program ends with this status.
    void endWith(int status) { write(".status", QByteArray::number(status)); }
    /// From now on the program does not end before release().
    void hold() { write(".hold", {}); }
    void release() { QFile::remove(m_path + QLatin1String(".hold")); }

    /// What the program was last started with; none when it has not run.
    std::optional<QStringList> arguments() const
    {
        QFile file(m_path + QLatin1String(".arguments"));
        if (!file.open(QIODevice::ReadOnly))
            return std::nullopt;
        const QStringList texts = QString::fromUtf8(file.readAll()).split(QChar::Null);
        return texts.first(texts.size() - 1); // each is followed by a null character
    }

private:
    void write(const char *suffix, const QByteArray &content) const
    {
        QFile file(m_path + QLatin1String(suffix));
        if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
            qFatal("cannot write %s", qPrintable(file.fileName()));
    }

    QString m_path;
};
