#pragma once

#include "StandinRun.h"

#include <QMap>
#include <QTemporaryDir>

// A folder of its own to make images in, with what the tests of both formats do there. Names are
// bytes, as the file system has them.
class ImageTrial
{
public:
    // Contents of files and targets of links by path; folders are empty and end with "/".
    using Tree = QMap<QByteArray, QByteArray>;

    ImageTrial();
    ~ImageTrial();
    ImageTrial(const ImageTrial &) = delete;
    ImageTrial &operator=(const ImageTrial &) = delete;

    QByteArray path(const QByteArray &name) const { return m_folder + '/' + name; }
    QString image() const { return m_directory.filePath(QStringLiteral("image")); }
    QStringList entries() const { return entriesOf(m_directory.path()); }

    // Makes the folders that a file or link stands in as well; a name that ends with "/" is one.
    void makeFile(const QByteArray &name, const QByteArray &content) const;
    void makeLink(const QByteArray &name, const QByteArray &target) const;

    // Packs "source" into image() with the arguments that the pages send; `prefix` is a program
    // that starts it. The status is that of the whole.
    RunResult makeImage(bool isHfs, const QString &volumeName = QStringLiteral("Volume"),
                        const QStringList &prefix = {}) const;
    static RunResult run(const QStringList &command)
    {
        return runProgram(command.first(), command.mid(1));
    }
    static QStringList command(bool isHfs, const QString &image, const QString &volumeName,
                               const QString &source);

    // What stands below a folder on the disk.
    Tree tree(const QByteArray &name) const;

    // What another program finds in image() when it unpacks it into a folder.
    Tree unpacked(const QStringList &unpacker) const;

private:
    QTemporaryDir m_directory;
    QByteArray m_folder;
};
