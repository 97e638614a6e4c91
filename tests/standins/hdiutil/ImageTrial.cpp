#include "ImageTrial.h"

#include <QDir>
#include <QFile>
#include <QProcess>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

ImageTrial::ImageTrial() : m_folder(QFile::encodeName(m_directory.path()))
{
    m_directory.setAutoRemove(false); // it cannot remove names that are not UTF-8
    makeFolder("source");
}

ImageTrial::~ImageTrial()
{
    std::error_code error;
    fs::remove_all(m_folder.toStdString(), error);
}

void ImageTrial::makeFolder(const QByteArray &name) const
{
    fs::create_directories(path(name).toStdString());
}

void ImageTrial::makeFile(const QByteArray &name, const QByteArray &content) const
{
    const fs::path file = path(name).toStdString();
    fs::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content.toStdString();
}

void ImageTrial::makeLink(const QByteArray &name, const QByteArray &target) const
{
    const fs::path link = path(name).toStdString();
    fs::create_directories(link.parent_path());
    fs::create_symlink(target.toStdString(), link);
}

QStringList ImageTrial::command(bool isHfs, const QString &image, const QString &volumeName,
                                const QString &source)
{
    QStringList arguments{QStringLiteral(TOOLVANE_BUILD_DIR "/libexec/toolvane/hdiutil"),
                          u"makehybrid"_s};
    if (isHfs)
        arguments += u"-hfs"_s;
    return arguments + QStringList{u"-o"_s,    image,    u"-default-volume-name"_s,
                                   volumeName, u"-ov"_s, u"-quiet"_s,
                                   source};
}

ImageTrial::End ImageTrial::makeImage(bool isHfs, const QString &volumeName,
                                      const QStringList &prefix) const
{
    return run(prefix
               + command(isHfs, image(), volumeName, QString::fromLocal8Bit(path("source"))));
}

ImageTrial::End ImageTrial::run(const QStringList &command)
{
    QProcess process;
    process.start(command.first(), command.mid(1));
    process.closeWriteChannel();
    if (!process.waitForFinished(120'000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, process.readAllStandardError()};
    return {process.exitCode(), process.readAllStandardError() + process.readAllStandardOutput()};
}

ImageTrial::Tree ImageTrial::tree(const QByteArray &name) const
{
    Tree tree;
    const fs::path root = path(name).toStdString();
    for (const auto &entry : fs::recursive_directory_iterator(root)) {
        const auto key = QByteArray::fromStdString(entry.path().lexically_relative(root).string());
        std::ostringstream content;
        if (entry.is_symlink())
            tree.insert(key, QByteArray::fromStdString(fs::read_symlink(entry.path()).string()));
        else if (entry.is_directory())
            tree.insert(key + '/', {});
        else if (entry.is_regular_file()) {
            if (entry.file_size() > 0)
                content << std::ifstream(entry.path(), std::ios::binary).rdbuf();
            tree.insert(key, QByteArray::fromStdString(content.str()));
        }
    }
    return tree;
}

ImageTrial::Tree ImageTrial::unpacked(const QStringList &unpacker) const
{
    static int number = 0;
    const auto target = "unpacked" + QByteArray::number(++number);
    makeFolder(target);
    QProcess process;
    process.setWorkingDirectory(QString::fromLocal8Bit(path(target)));
    process.start(unpacker.first(), unpacker.mid(1) + QStringList{image()});
    if (!process.waitForFinished(120'000) || process.exitCode() != 0)
        return {{"failed", process.readAllStandardError() + process.readAllStandardOutput()}};
    return tree(target);
}

QStringList ImageTrial::leftBehind() const
{
    QStringList names =
        QDir(m_directory.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    names.removeOne(u"source"_s);
    names.removeOne(u"image"_s);
    return names;
}
