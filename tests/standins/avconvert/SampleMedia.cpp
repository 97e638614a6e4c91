#include "SampleMedia.h"

using namespace Qt::StringLiterals;

QString SampleMedia::make(const QString &name, const QString &arguments) const
{
    QString line = arguments;
    line.replace(u"VIDEO"_s, u"-f lavfi -i testsrc2=s=160x120:r=25:d=2"_s);
    line.replace(u"SOUND"_s, u"-f lavfi -i sine=d=2"_s);
    const QStringList list = QStringList{u"-v"_s, u"error"_s, u"-y"_s}
        + line.split(u' ', Qt::SkipEmptyParts) + QStringList{path(name)};
    const RunResult result = runProgram(u"ffmpeg"_s, list);
    if (result.status != 0)
        qWarning("%s: %s", qPrintable(line), result.errors.constData());
    return path(name);
}

QString SampleMedia::cut(const QString &source, double part, const QString &name) const
{
    const QByteArray content = contentOf(source);
    writeFile(path(name), content.left(qsizetype(double(content.size()) * part)));
    return path(name);
}

RunResult convert(const QString &preset, const QString &source, const QString &output)
{
    return runStandin(
        u"avconvert"_s,
        {u"--preset"_s, preset, u"--source"_s, source, u"--output"_s, output, u"-q"_s});
}

QByteArray probe(const QString &path, const QString &entries, const QString &kind)
{
    const RunResult result =
        runProgram(u"ffprobe"_s,
                   {u"-v"_s, u"error"_s, u"-select_streams"_s, kind, u"-show_entries"_s, entries,
                    u"-of"_s, u"csv=p=0"_s, path});
    return result.output.trimmed() + result.errors;
}

QByteArray complaintsAbout(const QString &path)
{
    return runProgram(u"ffmpeg"_s,
                      {u"-v"_s, u"error"_s, u"-nostdin"_s, u"-i"_s, path, u"-map"_s, u"0:v?"_s,
                       u"-map"_s, u"0:a?"_s, u"-f"_s, u"null"_s, u"-"_s})
        .errors;
}
