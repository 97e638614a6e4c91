#include "ImageTrial.h"

#include <QFile>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace fs = std::filesystem;
using namespace Qt::StringLiterals;

ImageTrial::ImageTrial() : m_folder(QFile::encodeName(m_directory.path()))
{
    m_directory.setAutoRemove(false); // it cannot remove names that are not UTF-8
    makeFile("source/", {});
}

ImageTrial::~ImageTrial()
{
    std::error_code error;
    fs::remove_all(m_folder.toStdString(), error);
}

void ImageTrial::makeFile(const QByteArray &name, const QByteArray &content) const
{
    const fs::path file = path(name).toStdString();
    fs::create_directories(file.parent_path());
    if (!name.endsWith('/'))
        std::ofstream(file, std::ios::binary) << content.toStdString();
}

void ImageTrial::makeLink(const QByteArray &name, const QByteArray &target) const
{
    fs::create_symlink(target.toStdString(), path(name).toStdString());
}

QStringList ImageTrial::command(bool isHfs, const QString &image, const QString &volumeName,
                                const QString &source)
{
    QStringList arguments{standinPath(u"hdiutil"_s), u"makehybrid"_s};
    if (isHfs)
        arguments += u"-hfs"_s;
    return arguments + QStringList{u"-o"_s,    image,    u"-default-volume-name"_s,
                                   volumeName, u"-ov"_s, u"-quiet"_s,
                                   source};
}

RunResult ImageTrial::makeImage(bool isHfs, const QString &volumeName,
                                const QStringList &prefix) const
{
    return run(prefix + command(isHfs, image(), volumeName, m_directory.filePath(u"source"_s)));
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
    makeFile("unpacked/", {});
    const QStringList inFolder{u"sh"_s, u"-c"_s, u"cd \"$0\" && exec \"$@\""_s,
                               m_directory.filePath(u"unpacked"_s)};
    const RunResult end = run(inFolder + unpacker + QStringList{image()});
    const Tree result = end.status == 0 ? tree("unpacked") : Tree{{"failed", end.errors}};
    fs::remove_all(path("unpacked").toStdString());
    return result;
}
