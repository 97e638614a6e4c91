#pragma once

#include "StandinRun.h"

#include <QJsonObject>
#include <QTemporaryDir>

/// What check_hfs.py finds; a contradiction to the format, or no answer, fails the test.
QJsonObject soundHfs(const QStringList &arguments);

/// A folder of its own to make images in, with what the tests of both formats do there.
class ImageTrial
{
public:
    ImageTrial();
    ~ImageTrial();
    ImageTrial(const ImageTrial &) = delete;
    ImageTrial &operator=(const ImageTrial &) = delete;

    QString image() const { return m_directory.filePath(QStringLiteral("image")); }
    QStringList entries() const { return entriesOf(m_directory.path()); }

    /// Makes the folders above it as well. The name is bytes, as the file system has it.
    void makeFile(const QByteArray &name, const QByteArray &content) const;
    /// Runs a shell script in the folder; fails the test when the script fails.
    void require(const QString &script) const;

    /// Packs "source" into image() with the arguments that the pages send, by a program that starts
    /// the other if there is one.
    RunResult makeImage(bool isHfs, const QString &volumeName = QStringLiteral("Volume"),
                        const QStringList &starter = {}) const;

private:
    QTemporaryDir m_directory;
};
