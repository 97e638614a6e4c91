#include "UnpublishedFile.h"

#include <QRandomGenerator>

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

static QByteArray ownDescriptorPath(int descriptor)
{
    return "/proc/self/fd/" + QByteArray::number(descriptor);
}

static QByteArray newTemporaryName()
{
    return ".toolvane-" + QByteArray::number(QRandomGenerator::global()->generate64(), 16);
}

static int errorOf(int result)
{
    return result == 0 ? 0 : errno;
}

UnpublishedFile::UnpublishedFile(const QByteArray &folder)
    : m_folder(open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
{
    if (m_folder)
        openNameless();
    if (m_folder && !m_file)
        openNamed();
    m_error = m_file ? 0 : errno;
}

UnpublishedFile::~UnpublishedFile()
{
    if (!m_temporaryName.isEmpty())
        unlinkat(m_folder.get(), m_temporaryName.constData(), 0);
}

void UnpublishedFile::openNameless()
{
    if (access("/proc/self/fd", X_OK) == 0) // without it the file could never get a name
        m_file = FileDescriptor(openat(m_folder.get(), ".", O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
}

void UnpublishedFile::openNamed()
{
    do {
        m_temporaryName = newTemporaryName();
        m_file = FileDescriptor(openat(m_folder.get(), m_temporaryName.constData(),
                                       O_CREAT | O_EXCL | O_RDWR | O_CLOEXEC, 0600));
    } while (!m_file && errno == EEXIST);
    if (!m_file)
        m_temporaryName.clear();
}

int UnpublishedFile::publish(const QByteArray &name)
{
    return finish(m_temporaryName.isEmpty() ? linkNameless(name) : renameTo(name));
}

int UnpublishedFile::replace(const QByteArray &name)
{
    if (m_temporaryName.isEmpty()) { // only a name can take the place of another
        const QByteArray temporary = newTemporaryName();
        if (const int error = linkNameless(temporary))
            return error;
        m_temporaryName = temporary;
    }
    const int folder = m_folder.get();
    return finish(errorOf(renameat(folder, m_temporaryName.constData(), folder, name.constData())));
}

int UnpublishedFile::finish(int error)
{
    if (error == 0) {
        m_temporaryName.clear();
        fsync(m_folder.get()); // the name too shall survive a power cut
    }
    return error;
}

int UnpublishedFile::linkNameless(const QByteArray &name) const
{
    const QByteArray self = ownDescriptorPath(m_file.get());
    return errorOf(
        linkat(AT_FDCWD, self.constData(), m_folder.get(), name.constData(), AT_SYMLINK_FOLLOW));
}

int UnpublishedFile::renameTo(const QByteArray &name) const
{
    const int folder = m_folder.get();
    const int error = errorOf(
        renameat2(folder, m_temporaryName.constData(), folder, name.constData(), RENAME_NOREPLACE));
    if (error != EINVAL && error != ENOSYS)
        return error;
    return claimAndRename(name);
}

// For file systems that cannot rename without replacing: what is replaced is our own empty file.
int UnpublishedFile::claimAndRename(const QByteArray &name) const
{
    const int folder = m_folder.get();
    const int flags = O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC;
    if (!FileDescriptor(openat(folder, name.constData(), flags, 0600)))
        return errno;
    const int error =
        errorOf(renameat(folder, m_temporaryName.constData(), folder, name.constData()));
    if (error != 0)
        unlinkat(folder, name.constData(), 0);
    return error;
}
