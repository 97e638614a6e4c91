// A finished file gets to its place whole or not at all, and replaces nothing that exists there.

#include "FilePlacement.h"
#include "Files.h"
#include "OldSystem.h"

#include <QDir>
#include <QRegularExpression>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QTest>

#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <thread>

using namespace Qt::StringLiterals;

#ifdef TOOLVANE_TEST_OLD_SYSTEM
constexpr bool oldSystem = true;
#else
constexpr bool oldSystem = false;
#endif

class FilePlacementTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Seen by this process and its threads only, gone with them.
        m_mounted = unshare(CLONE_NEWNS) == 0
            && mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
        if (oldSystem && !pretendOldSystem())
            QSKIP("this kernel lets no process restrict itself");
    }

    void init()
    {
        m_here = std::make_unique<QTemporaryDir>();
        m_elsewhere = std::make_unique<QTemporaryDir>(m_mounted ? u"/tmp/toolvane-XXXXXX"_s
                                                                : u"/dev/shm/toolvane-XXXXXX"_s);
        const QByteArray folder = QFile::encodeName(m_elsewhere->path());
        if (m_mounted)
            QCOMPARE(mount("tmpfs", folder.constData(), "tmpfs", 0, "size=1m"), 0);
        Files::write(source(), m_bytes);
        QCOMPARE(chmod(QFile::encodeName(source()).constData(), 0640), 0);
    }

    void cleanup()
    {
        QVERIFY(m_here->isValid() && m_elsewhere->isValid());
        if (m_mounted)
            QCOMPARE(umount2(QFile::encodeName(m_elsewhere->path()).constData(), MNT_DETACH), 0);
        m_elsewhere.reset();
    }

    void placesWhole()
    {
        const QString near = m_here->filePath(u"-a \n\U0001F600.zip"_s);
        QCOMPARE(placeFile(source(), near), 0);
        QCOMPARE(Files::read(near), m_bytes);
        struct stat before = {};
        QCOMPARE(stat(QFile::encodeName(near).constData(), &before), 0);
        const QString far = m_elsewhere->filePath(QString(251, u'n') + u".zip"_s);
        QCOMPARE(placeFile(near, far), 0);
        QCOMPARE(Files::read(far), m_bytes);
        struct stat after = {};
        QCOMPARE(stat(QFile::encodeName(far).constData(), &after), 0);
        QCOMPARE(after.st_mode, before.st_mode);
        QCOMPARE(after.st_mtim.tv_sec, before.st_mtim.tv_sec);
        QVERIFY(entries(m_here->path()).isEmpty());
        QCOMPARE(entries(m_elsewhere->path()).size(), 1);
    }

    void standingTarget()
    {
        for (const QString &folder : {m_here->path(), m_elsewhere->path()}) {
            const QString file = folder + u"/file"_s;
            const QString link = folder + u"/dangling link"_s;
            Files::write(file, "precious");
            QVERIFY(QDir(folder).mkdir(u"folder"_s) && QFile::link(u"/nonexistent/there"_s, link));
            for (const QString &target : {file, folder + u"/folder"_s, link}) {
                Files::write(source(), m_bytes);
                QCOMPARE(placeFile(source(), target), EEXIST);
                QCOMPARE(Files::read(source()), m_bytes);
            }
            QVERIFY(QFile::remove(source()));
            QCOMPARE(Files::read(file), "precious");
            QVERIFY(QFileInfo(folder + u"/folder"_s).isDir() && QFileInfo(link).isSymLink());
            QCOMPARE(entries(folder).size(), 3);
        }
    }

    // The output was chosen where the archive was made.
    void sameFile()
    {
        const QString spelled =
            m_here->path() + u"/../"_s + QFileInfo(m_here->path()).fileName() + u"//finished"_s;
        QCOMPARE(placeFile(source(), spelled), 0);
        QCOMPARE(Files::read(source()), m_bytes);
        const QString otherLink = m_here->filePath(u"link"_s);
        QCOMPARE(
            link(QFile::encodeName(source()).constData(), QFile::encodeName(otherLink).constData()),
            0);
        QCOMPARE(placeFile(source(), otherLink), EEXIST);
        QCOMPARE(Files::read(otherLink), m_bytes);
    }

    void sourceIsNoFile()
    {
        QVERIFY(QFile::remove(source()));
        QCOMPARE(placeFile(source(), m_here->filePath(u"a"_s)), ENOENT);
        QCOMPARE(placeFile(source(), source()), ENOENT);
        QCOMPARE(mkfifo(QFile::encodeName(source()).constData(), 0600), 0); // would never end
        QCOMPARE(placeFile(source(), m_elsewhere->filePath(u"a"_s)), EINVAL);
        QVERIFY(entries(m_elsewhere->path()).isEmpty());
    }

    void fullOrReadOnlyDisk()
    {
        if (!m_mounted)
            QSKIP("mounting is not permitted here");
        Files::write(m_elsewhere->filePath(u"filler"_s), QByteArray(900'000, 'f'));
        QCOMPARE(placeFile(source(), m_elsewhere->filePath(u"a"_s)), ENOSPC);
        QCOMPARE(entries(m_elsewhere->path()), QStringList{u"filler"_s});
        const QByteArray folder = QFile::encodeName(m_elsewhere->path());
        QCOMPARE(mount("none", folder.constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^.*not placed: Read-only.*$"_s));
        QCOMPARE(placeFile(source(), m_elsewhere->filePath(u"a"_s)), EROFS);
        QCOMPARE(Files::read(source()), m_bytes); // refused twice, lost neither time
    }

    void stopped()
    {
        // Before it would be renamed, before it is copied, and in the middle of the copy.
        for (const auto &[elsewhere, inTheMiddle] :
             {std::pair(false, false), {true, false}, {true, true}}) {
            if (inTheMiddle) {
                if (!m_mounted)
                    QSKIP("mounting is not permitted here");
                const QByteArray folder = QFile::encodeName(m_elsewhere->path());
                QCOMPARE(mount("none", folder.constData(), nullptr, MS_REMOUNT, "size=512m"), 0);
                QVERIFY(QFile::resize(source(), 510 << 20));
            }
            const QString folder = elsewhere ? m_elsewhere->path() : m_here->path();
            std::stop_source stop;
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"not placed"_s));
            const auto copied = [free = QStorageInfo(folder).bytesAvailable(), folder] {
                return free - QStorageInfo(folder).bytesAvailable();
            };
            std::jthread stopper([stop, copied, least = inTheMiddle ? 1 << 20 : 0](
                                     const std::stop_token &isOver) mutable {
                while (copied() < least && !isOver.stop_requested())
                    std::this_thread::yield();
                stop.request_stop();
            });
            if (!inTheMiddle)
                stopper.join();
            QCOMPARE(placeFile(source(), folder + u"/a"_s, stop.get_token()), ECANCELED);
            QCOMPARE(entries(m_here->path()), QStringList{u"finished"_s}); // nothing is lost
            QVERIFY(entries(m_elsewhere->path()).isEmpty());
        }
    }

private:
    QString source() const { return m_here->filePath(u"finished"_s); }
    /// Everything in the folder, temporary names included.
    static QStringList entries(const QString &folder)
    {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                      | QDir::NoDotAndDotDot);
    }

    const QByteArray m_bytes = QByteArray(300'000, 'z') + QByteArray("\0end", 4);
    std::unique_ptr<QTemporaryDir> m_here;
    std::unique_ptr<QTemporaryDir> m_elsewhere; // a small file system of its own, if permitted
    bool m_mounted = false;
};

QTEST_GUILESS_MAIN(FilePlacementTest)
#include "tst_file_placement.moc"
