#include "ImageTrial.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <filesystem>
#include <fstream>

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

QJsonObject soundHfs(const QStringList &arguments)
{
    const auto script = u"" TOOLVANE_SOURCE_DIR "/tests/standins/hdiutil/check_hfs.py"_s;
    const RunResult end = runProgram(u"python3"_s, QStringList{script} + arguments);
    const QJsonObject found = QJsonDocument::fromJson(end.output).object();
    if (found[u"problems"] != QJsonArray())
        QTest::qFail((end.output.left(1000) + end.errors).constData(), __FILE__, __LINE__);
    return found;
}

ImageTrial::ImageTrial()
{
    m_directory.setAutoRemove(false); // it cannot remove names that are not UTF-8
    QDir(m_directory.path()).mkdir(u"source"_s);
}

ImageTrial::~ImageTrial()
{
    std::error_code error;
    fs::remove_all(m_directory.path().toStdString(), error);
}

void ImageTrial::makeFile(const QByteArray &name, const QByteArray &content) const
{
    const fs::path file = fs::path(m_directory.path().toStdString()) / name.toStdString();
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content.toStdString();
}

void ImageTrial::require(const QString &script) const
{
    const RunResult end =
        runProgram(u"sh"_s, {u"-c"_s, u"cd \"$0\" && "_s + script, m_directory.path()});
    QVERIFY2(end.status == 0, (end.output + end.errors).constData());
}

RunResult ImageTrial::makeImage(bool isHfs, const QString &volumeName,
                                const QStringList &starter) const
{
    QStringList command = starter + QStringList{standinPath(u"hdiutil"_s), u"makehybrid"_s};
    if (isHfs)
        command += u"-hfs"_s;
    command += {u"-o"_s,  image(),     u"-default-volume-name"_s,        volumeName,
                u"-ov"_s, u"-quiet"_s, m_directory.filePath(u"source"_s)};
    return runProgram(command.first(), command.mid(1));
}
