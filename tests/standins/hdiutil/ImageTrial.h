#pragma once

#include <QByteArray>
#include <QMap>
#include <QStringList>
#include <QTemporaryDir>

// A folder of its own to make images in, with what the tests of both formats do there. Names are
// bytes, as the file system has them.
class ImageTrial
{
public:
    struct End {
        int status = -1; // -1: ended by a signal or not started
        QByteArray errors;
    };

    // Contents of files and targets of links by path; folders are empty and end with "/".
    using Tree = QMap<QByteArray, QByteArray>;

    ImageTrial();
    ~ImageTrial();
    ImageTrial(const ImageTrial &) = delete;
    ImageTrial &operator=(const ImageTrial &) = delete;

    QByteArray path(const QByteArray &name) const { return m_folder + '/' + name; }
    QString image() const { return QString::fromLocal8Bit(path("image")); }

    // Makes the folders that a file or link stands in as well.
    void makeFile(const QByteArray &name, const QByteArray &content) const;
    void makeLink(const QByteArray &name, const QByteArray &target) const;
    void makeFolder(const QByteArray &name) const;

    // Packs "source" into image() with the arguments that the pages send; `prefix` is a program
    // that starts it. End::status is that of the whole.
    End makeImage(bool isHfs, const QString &volumeName = QStringLiteral("Volume"),
                  const QStringList &prefix = {}) const;
    static End run(const QStringList &command);
    static QStringList command(bool isHfs, const QString &image, const QString &volumeName,
                               const QString &source);

    // What stands below a folder on the disk.
    Tree tree(const QByteArray &name) const;

    // What another program finds in image() when it unpacks it into a folder.
    Tree unpacked(const QStringList &unpacker) const;

    // All names beside the source; only the image may be there after a run.
    QStringList leftBehind() const;

private:
    QTemporaryDir m_directory;
    QByteArray m_folder;
};
