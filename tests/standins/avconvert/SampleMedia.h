#pragma once

#include "StandinRun.h"

#include <QTemporaryDir>

/// Media files made for one test, and what ffprobe says about a result.
class SampleMedia
{
public:
    /// Makes a file from ffmpeg's arguments without its name; blanks part the arguments. "VIDEO" and
    /// "SOUND" stand for two seconds of a test picture (160 x 120, 25 a second) and of a tone.
    QString make(const QString &name, const QString &arguments) const;

    /// The first part of a file under another name.
    QString cut(const QString &path, double part, const QString &name) const;

    QString path(const QString &name) const { return m_dir.filePath(name); }
    QStringList names() const { return entriesOf(m_dir.path()); }

private:
    QTemporaryDir m_dir;
};

RunResult convert(const QString &preset, const QString &source, const QString &output);

/// ffprobe's answer, a line for each stream of the kind ("v", "a", or all): "h264,160".
QByteArray probe(const QString &path, const QString &entries, const QString &kind = {});

/// What ffmpeg complains about when it decodes picture and sound to the end; empty for a good file.
QByteArray complaintsAbout(const QString &path);
