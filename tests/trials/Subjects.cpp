#include "Subjects.h"

#include "StandinRun.h"

#include <QDirIterator>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace
{

constexpr qsizetype megabyte = 1024 * 1024;
const auto worker = u"" TOOLVANE_BUILD_DIR "/tests/trial_worker"_s;

QByteArray noise(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    QRandomGenerator random(1);
    for (char &byte : bytes)
        byte = char(random.generate());
    return bytes;
}

/// Images hold the time of their making; everything else must be the same.
bool isSame(const QByteArray &bytes, const QByteArray &whole)
{
    constexpr int dates = 64;
    if (bytes.size() != whole.size())
        return false;
    int others = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i)
        others += bytes[i] != whole[i] ? 1 : 0;
    return others <= dates;
}

} // namespace

Contents contentsOf(const QDir &folder)
{
    Contents contents;
    QDirIterator files(folder.path(), QDir::Files | QDir::Hidden | QDir::System,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        contents.insert(folder.relativeFilePath(path), contentOf(path));
    }
    return contents;
}

void Subject::restore(QDir folder) const
{
    folder.removeRecursively(); // a disk's top folder stays
    const QString older = folder.filePath(replaces ? result : u"older"_s);
    QDir().mkpath(QFileInfo(older).path());
    writeFile(older, "[older]\n");
    prepare();
}

QString Subject::fault(const Contents &before, const Contents &now, const QByteArray &whole) const
{
    for (auto file = before.begin(); file != before.end(); ++file) {
        if (!now.contains(file.key()))
            return u"lost: "_s + file.key();
    }
    for (auto file = now.begin(); file != now.end(); ++file) {
        const bool isOlder = before.contains(file.key());
        if ((isOlder && file.value() == before[file.key()])
            || (file.key() == result && isSame(file.value(), whole)) || (!isOlder && leavesParts))
            continue;
        return (isOlder ? u"damaged: "_s : u"left behind: "_s) + file.key();
    }
    return {};
}

Subjects::Subjects(const QDir &samples, const QDir &folder)
    : m_all({{u"HFS image"_s, [this] { return image(true); }},
             {u"hybrid image"_s, [this] { return image(false); }},
             {u"movie"_s, [this] { return movie(); }},
             {u"speech"_s, [this] { return speech(); }},
             {u"unzip"_s, [this] { return unpacking(); }},
             {u"placement"_s, [this] { return placement(); }},
             {u"download"_s, [this] { return download(); }},
             {u"grant"_s, [this] { return grant(); }},
             {u"zip in window"_s, [this] { return window(); }}}),
      m_samples(samples), m_folder(folder)
{
    m_samples.mkpath(u"home"_s);
}

Subject Subjects::make(const QString &name)
{
    Subject subject = m_all[name]();
    const bool isOurs = subject.command.first() == worker;
    TrialRun::Variables variables{{u"HOME"_s, m_samples.filePath(u"home"_s)}};
    if (!isOurs) // its children are the distribution's programs, see plainEnvironment()
        variables.insert(u"LD_PRELOAD"_s, {});
    variables.insert(subject.variables);
    subject.variables = variables;
    subject.saysBegin = isOurs;
    return subject;
}

QString Subjects::sample(const QString &name, qsizetype size) const
{
    const QString path = m_samples.filePath(name);
    m_samples.mkpath(QFileInfo(path).path());
    writeFile(path, noise(size));
    return path;
}

Subject Subjects::image(bool isHfs) const
{
    for (int i = 0; i < 8; ++i)
        sample(u"images/%1"_s.arg(i), 4 * megabyte);
    QStringList command{standinPath(u"hdiutil"_s), u"makehybrid"_s};
    if (isHfs)
        command += u"-hfs"_s;
    command +=
        {u"-o"_s,     m_folder.filePath(u"image"_s),  u"-default-volume-name"_s, u"V"_s, u"-ov"_s,
         u"-quiet"_s, m_samples.filePath(u"images"_s)};
    return {.command = command,
            .result = u"image"_s,
            .noRoom = isHfs ? "No space left" : "space"}; // xorriso looks before it writes
}

Subject Subjects::movie() const
{
    const QString source = m_samples.filePath(u"source.avi"_s);
    const QString making = u"-v error -y -f lavfi -i testsrc2=s=176x144:d=2 "
                           "-vf noise=alls=40:allf=t -c:v mpeg4 -q:v 2"_s;
    runProgram(u"ffmpeg"_s, making.split(u' ') + QStringList{source});
    return {.command = {standinPath(u"avconvert"_s), u"--preset"_s, u"PresetHEVCHighestQuality"_s,
                        u"--source"_s, source, u"--output"_s, m_folder.filePath(u"out.m4v"_s),
                        u"-q"_s},
            .result = u"out.m4v"_s,
            .noRoom = "No space left"};
}

Subject Subjects::speech() const
{
    return {.command = {standinPath(u"say"_s), u"Ninety-nine bottles. "_s.repeated(200),
                        u"--voice=English (America)"_s, u"--rate=175"_s,
                        u"--output-file="_s + m_folder.filePath(u"out.aiff"_s)},
            .result = u"out.aiff"_s,
            .noRoom = "No space left"};
}

// The archive holds "older" too, which stands there already.
Subject Subjects::unpacking() const
{
    const QString archive = m_samples.filePath(u"sample.zip"_s);
    sample(u"archived/out"_s, 16 * megabyte);
    sample(u"archived/older"_s, 1000);
    runProgram(u"sh"_s,
               {u"-c"_s, u"cd \"$1\" && zip -q \"$2\" out older"_s, u"sh"_s,
                m_samples.filePath(u"archived"_s), archive});
    return {.command = {standinPath(u"unzip"_s), u"-q"_s, archive, u"-d"_s, m_folder.path()},
            .result = u"out"_s,
            .noRoom = "disk full",
            .success = 1, // for what it did not replace
            .terminated = 80,
            .replaces = false,
            .leavesParts = true};
}

Subject Subjects::placement() const
{
    const QString source = m_samples.filePath(u"finished"_s);
    return {.command = {worker, u"place"_s, source, m_folder.filePath(u"out.zip"_s)},
            .result = u"out.zip"_s,
            .noRoom = "No space left",
            .replaces = false,
            .prepare = [this] { sample(u"finished"_s, 32 * megabyte); }};
}

Subject Subjects::download()
{
    const QByteArray file = noise(8 * megabyte);
    m_server.set("/new.deb", file);
    const QStringList base64{QString::fromLatin1(m_maker.publicKey.toBase64()),
                             QString::fromLatin1(m_maker.sign(file).toBase64())};
    return {.command = QStringList{worker, u"download"_s,
                                   QString::fromLatin1(m_server.address("/new.deb")),
                                   QString::number(file.size())}
                + base64 + QStringList{m_folder.path()},
            .result = u"new.deb"_s,
            .noRoom = "No space left",
            .replaces = false};
}

Subject Subjects::grant() const
{
    return {.command = {worker, u"grant"_s},
            .result = u"Toolvane/Toolvane.conf"_s,
            .noRoom = "cannot write",
            .leavesParts = true,
            .variables = {{u"XDG_CONFIG_HOME"_s, m_folder.path()}}};
}

// The whole application with its Zip page at work; the archive is made in the home folder, which is
// emptied for each run.
Subject Subjects::window() const
{
    for (int i = 0; i < 20; ++i)
        sample(u"packed/%1"_s.arg(i), megabyte / 2);
    return {.command = {worker, u"zip"_s, m_samples.filePath(u"packed"_s),
                        m_folder.filePath(u"out.zip"_s)},
            .result = u"out.zip"_s,
            .noRoom = "No space left",
            .replaces = false,
            .prepare = [this] { QDir(m_samples.filePath(u"home"_s)).removeRecursively(); }};
}
