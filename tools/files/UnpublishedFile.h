#pragma once

#include "FileDescriptor.h"

#include <QByteArray>

/// A file that is written in a folder before anybody can see it there. Where the file system can,
/// it has no name at all until it is published, so that not even a killed program leaves something
/// behind; otherwise it has a temporary hidden name. Never published, it vanishes.
class UnpublishedFile
{
public:
    explicit UnpublishedFile(const QByteArray &folder);
    UnpublishedFile(const UnpublishedFile &) = delete;
    UnpublishedFile &operator=(const UnpublishedFile &) = delete;
    ~UnpublishedFile();

    int error() const { return m_error; } ///< 0, or why there is no file: an `errno`.
    int descriptor() const { return m_file.get(); }

    /// Gives the file its name in the folder, never in place of something that exists
    /// (EEXIST). Returns 0 or an `errno`.
    int publish(const QByteArray &name);
    /// The same in place of a file that may exist. A link of that name is replaced itself; where it
    /// leads, nothing changes.
    int replace(const QByteArray &name);

private:
    void openNameless();
    void openNamed();
    int finish(int error);
    int linkNameless(const QByteArray &name) const;
    int renameTo(const QByteArray &name) const;
    int claimAndRename(const QByteArray &name) const;

    FileDescriptor m_folder;
    FileDescriptor m_file;
    QByteArray m_temporaryName; ///< Empty for a file without a name.
    int m_error = 0;
};
