// Proves that a new archive takes its name only when it is complete, replaces nothing, and leaves
// nothing behind otherwise, also on file systems that have no files without a name.
#include "EndOnSignal.h"
#include "NewArchive.h"
#include "StandinRun.h"
#include "ZipStatus.h"

#include <QTemporaryDir>
#include <QTest>

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(NewArchive::Temporary)

class TestNewArchive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_target = m_dir->filePath(u"out.zip"_s);
    }

    void takesItsNameWhenComplete_data() { eachTemporary(); }
    void takesItsNameWhenComplete()
    {
        QFETCH(NewArchive::Temporary, temporary);
        const mode_t before = ::umask(027);
        NewArchive(m_target.toStdString(), temporary).write(0, "half");
        QVERIFY(entriesOf(m_dir->path()).isEmpty());
        NewArchive archive(m_target.toStdString(), temporary);
        const auto scratch = archive.scratchFile();
        archive.write(2, "chive and more");
        archive.write(0, "ar");
        QVERIFY(!QFile::exists(m_target));
        archive.publish(7);
        ::umask(before);
        QCOMPARE(contentOf(m_target), "archive");
        QCOMPARE(entriesOf(m_dir->path()), QStringList{u"out.zip"_s});
        QCOMPARE(int(archive.status().st_mode & 07777), 0640);
    }

    void replacesNothing_data() { eachTemporary(); }
    void replacesNothing()
    {
        QFETCH(NewArchive::Temporary, temporary);
        {
            NewArchive archive(m_target.toStdString(), temporary);
            writeFile(m_target, "somebody's");
            try {
                archive.publish(0);
                QFAIL("was replaced");
            } catch (const standin::Failure &failure) {
                QCOMPARE(int(failure.status), int(CannotCreate));
            }
        }
        QCOMPARE(contentOf(m_target), "somebody's");
        QCOMPARE(entriesOf(m_dir->path()), QStringList{u"out.zip"_s});
    }

    void leavesNothingWhenEnded_data() { eachTemporary(); }
    void leavesNothingWhenEnded()
    {
        QFETCH(NewArchive::Temporary, temporary);
        const pid_t child = ::fork();
        if (child == 0) {
            standin::installEndOnSignal();
            const NewArchive archive(m_target.toStdString(), temporary);
            archive.write(0, "half");
            ::raise(SIGTERM);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        QCOMPARE(WEXITSTATUS(status), 128 + SIGTERM);
        QVERIFY(entriesOf(m_dir->path()).isEmpty());
    }

private:
    static void eachTemporary()
    {
        QTest::addColumn<NewArchive::Temporary>("temporary");
        QTest::newRow("without a name") << NewArchive::Temporary::NamelessIfPossible;
        QTest::newRow("hidden") << NewArchive::Temporary::Named;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_target;
};

QTEST_GUILESS_MAIN(TestNewArchive)
#include "tst_newarchive.moc"
