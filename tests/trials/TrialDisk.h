#pragma once

#include <QDir>
#include <QFile>

#include <sched.h>
#include <sys/mount.h>

/// A file system of its own on a folder, of a chosen size, seen by this process and its children
/// only; gone with the object.
class TrialDisk
{
public:
    /// Once, before any thread is started. False where mounting is not permitted.
    static bool isPermitted()
    {
        static const bool permitted = unshare(CLONE_NEWNS) == 0
            && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
        return permitted;
    }

    TrialDisk(const QString &folder, qint64 bytes) : m_folder(QFile::encodeName(folder))
    {
        QDir().mkpath(folder);
        m_mounted =
            mount("tmpfs", m_folder.constData(), "tmpfs", 0, options(bytes).constData()) == 0;
    }
    ~TrialDisk()
    {
        if (m_mounted)
            umount2(m_folder.constData(), MNT_DETACH);
    }
    Q_DISABLE_COPY_MOVE(TrialDisk)

    bool isMounted() const { return m_mounted; }
    bool resize(qint64 bytes) const
    {
        return mount("tmpfs", m_folder.constData(), "tmpfs", MS_REMOUNT, options(bytes).constData())
            == 0;
    }

private:
    static QByteArray options(qint64 bytes) { return "size=" + QByteArray::number(bytes); }

    QByteArray m_folder;
    bool m_mounted;
};
