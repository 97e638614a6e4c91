// A finished file gets to its place whole or not at all, and replaces nothing that stands there.

#include "FilePlacement.h"
#include "Files.h"
#include "OldSystem.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using End = FilePlacement::End;

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
        QCOMPARE(place(source(), near).end(), oldSystem ? End::Copied : End::Renamed);
        QCOMPARE(Files::read(near), m_bytes);
        struct stat before = {};
        QCOMPARE(stat(QFile::encodeName(near).constData(), &before), 0);
        const QString far = m_elsewhere->filePath(QString(251, u'n') + u".zip"_s);
        QCOMPARE(place(near, far).end(), End::Copied);
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
                const FilePlacement placement = place(source(), target);
                QCOMPARE(placement.end(), End::NotPlaced);
                QCOMPARE(placement.error(), EEXIST);
                QVERIFY(!QFile::exists(source()));
            }
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
        QCOMPARE(place(source(), spelled).end(), End::AlreadyThere);
        QCOMPARE(Files::read(source()), m_bytes);
        const QString otherLink = m_here->filePath(u"link"_s);
        QCOMPARE(
            link(QFile::encodeName(source()).constData(), QFile::encodeName(otherLink).constData()),
            0);
        QCOMPARE(place(source(), otherLink).end(), End::NotPlaced);
        QCOMPARE(Files::read(otherLink), m_bytes);
    }

    void sourceIsNoFile()
    {
        QVERIFY(QFile::remove(source()));
        QCOMPARE(place(source(), m_here->filePath(u"a"_s)).error(), ENOENT);
        QCOMPARE(place(source(), source()).error(), ENOENT);
        QCOMPARE(mkfifo(QFile::encodeName(source()).constData(), 0600), 0); // would never end
        QCOMPARE(place(source(), m_elsewhere->filePath(u"a"_s)).error(), EINVAL);
        QVERIFY(entries(m_elsewhere->path()).isEmpty());
    }

    void fullOrReadOnlyDisk()
    {
        if (!m_mounted)
            QSKIP("mounting is not permitted here");
        Files::write(m_elsewhere->filePath(u"filler"_s), QByteArray(900'000, 'f'));
        const FilePlacement placement = place(source(), m_elsewhere->filePath(u"a"_s));
        QCOMPARE(placement.error(), ENOSPC);
        QCOMPARE(entries(m_elsewhere->path()), QStringList{u"filler"_s});
        const QByteArray folder = QFile::encodeName(m_elsewhere->path());
        QCOMPARE(mount("none", folder.constData(), nullptr, MS_REMOUNT | MS_RDONLY, nullptr), 0);
        Files::write(source(), m_bytes);
        const FilePlacement readOnly = place(source(), m_elsewhere->filePath(u"a"_s));
        QCOMPARE(readOnly.error(), EROFS);
        QVERIFY(!readOnly.description().contains(u'\n'));
        QVERIFY(entries(m_here->path()).isEmpty());
    }

    void stopped()
    {
        // Before it would be renamed, before it is copied, and in the middle of the copy.
        for (const auto &[elsewhere, after] : {std::pair(false, 0), {true, 0}, {true, 10}}) {
            if (after > 0) {
                if (!m_mounted)
                    QSKIP("mounting is not permitted here");
                const QByteArray folder = QFile::encodeName(m_elsewhere->path());
                QCOMPARE(mount("none", folder.constData(), nullptr, MS_REMOUNT, "size=512m"), 0);
                QVERIFY(QFile::resize(source(), 510 << 20)); // more than is copied until then
            }
            const QString folder = elsewhere ? m_elsewhere->path() : m_here->path();
            std::stop_source stop;
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"not placed"_s));
            if (after == 0)
                stop.request_stop();
            const auto future = placeFile(source(), folder + u"/a"_s, stop.get_token());
            QTimer::singleShot(after, this, [stop]() mutable { stop.request_stop(); });
            QTRY_VERIFY_WITH_TIMEOUT(future.isFinished(), 60000);
            QVERIFY(future.result().wasStopped());
            QCOMPARE(future.result().error(), ECANCELED);
            QCOMPARE(entries(m_here->path()), QStringList{u"finished"_s}); // nothing is lost
            QVERIFY(entries(m_elsewhere->path()).isEmpty());
        }
    }

private:
    static FilePlacement place(const QString &from, const QString &to)
    {
        const QFuture<FilePlacement> future = placeFile(from, to);
        [&] { QTRY_VERIFY_WITH_TIMEOUT(future.isFinished(), 60000); }();
        return future.result();
    }
    QString source() const { return m_here->filePath(u"finished"_s); }
    /// Everything in the folder, temporary names included.
    static QStringList entries(const QString &folder)
    {
        return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                      | QDir::NoDotAndDotDot);
    }

    const QByteArray m_bytes = QByteArray(300'000, 'z') + QByteArray("\0end", 4);
    std::unique_ptr<QTemporaryDir> m_here;
    std::unique_ptr<QTemporaryDir> m_elsewhere; // a small file system of its own, where permitted
    bool m_mounted = false;
};

QTEST_GUILESS_MAIN(FilePlacementTest)
#include "tst_file_placement.moc"
