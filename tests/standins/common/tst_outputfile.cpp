// Proves that an output file takes its name only when it is complete, and that an older file of
// that name outlives everything else: a failure, an ending signal.
#include "EndOnSignal.h"
#include "Failure.h"
#include "OutputFile.h"
#include "StandinRun.h"

#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <clocale>
#include <csignal>

using namespace Qt::StringLiterals;
using standin::OutputFile;

class TestOutputFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The system's words are compared here, so they must be English.
    void initTestCase() { std::setlocale(LC_MESSAGES, "C"); }
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_target = m_dir->filePath(u"out"_s);
    }

    void replacesOnlyOnCommit() { replacesOnCommit(OutputFile::Temporary::NamelessIfPossible); }
    void replacesOnlyOnCommitWithAName() { replacesOnCommit(OutputFile::Temporary::Named); }

    void followsLinksAlsoToNothing()
    {
        for (const auto &[link, to] : {std::pair(u"a"_s, u"b"_s), {u"b"_s, u"out"_s}})
            QVERIFY(QFile::link(to, m_dir->filePath(link)));
        for (const char *content : {"first", "second"}) {
            OutputFile file(m_dir->filePath(u"a"_s).toStdString());
            file.write(content, strlen(content));
            file.commit();
            QCOMPARE(contentOf(m_target), content);
        }
        QCOMPARE(QFile::symLinkTarget(m_dir->filePath(u"a"_s)), m_dir->filePath(u"b"_s));
    }

    void leavesNothingWhenEnded()
    {
        writeFile(m_target, "older");
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
            const pid_t child = ::fork();
            if (child == 0) {
                standin::installEndOnSignal();
                OutputFile file(m_target.toStdString(), OutputFile::Temporary::Named);
                file.write("half", 4);
                ::raise(signal);
            }
            int status = 0;
            ::waitpid(child, &status, 0);
            QCOMPARE(WEXITSTATUS(status), 128 + signal);
            QCOMPARE(entriesOf(m_dir->path()), QStringList{u"out"_s});
            QCOMPARE(contentOf(m_target), "older");
        }
    }

    void refusesWhatIsNotARegularFile()
    {
        QCOMPARE(::mkfifo(qPrintable(m_dir->filePath(u"fifo"_s)), 0600), 0);
        writeFile(m_dir->filePath(u"file"_s), "older");
        QVERIFY(QFile::setPermissions(m_dir->filePath(u"file"_s), QFile::ReadOwner));
        QVERIFY(QFile::link(u"loop"_s, m_dir->filePath(u"loop"_s)));
        const QStringList before = entriesOf(m_dir->path());
        QList<std::pair<QString, const char *>> refused{
            {u"."_s, "Is a directory"},
            {u"new/"_s, "Is a directory"},
            {u"none/out"_s, "none: No such file or directory"},
            {u"file/out"_s, "Not a directory"},
            {u"fifo"_s, "Not a regular file"},
            {u"loop"_s, "Too many levels of symbolic links"}};
        if (::geteuid() != 0)
            refused.append({u"file"_s, "Permission denied"});
        for (const auto &[path, reason] : refused) {
            try {
                OutputFile file(m_dir->filePath(path).toStdString());
                QFAIL("was opened");
            } catch (const standin::Failure &failure) {
                QVERIFY2(QByteArray(failure.what()).endsWith(reason), failure.what());
            }
            QCOMPARE(entriesOf(m_dir->path()), before);
        }
    }

private:
    void replacesOnCommit(OutputFile::Temporary kind)
    {
        const mode_t before = ::umask(027);
        OutputFile(m_target.toStdString(), kind).write("half", 4);
        QVERIFY(entriesOf(m_dir->path()).isEmpty());
        writeFile(m_target, "older");
        {
            OutputFile file(m_target.toStdString(), kind);
            file.write("newer", 5);
            QCOMPARE(contentOf(m_target), "older");
            file.commit();
        }
        ::umask(before);
        QCOMPARE(contentOf(m_target), "newer");
        QCOMPARE(entriesOf(m_dir->path()), QStringList{u"out"_s});
        struct stat status;
        QCOMPARE(::stat(qPrintable(m_target), &status), 0);
        QCOMPARE(status.st_mode & 07777, 0640U);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_target;
};

QTEST_GUILESS_MAIN(TestOutputFile)
#include "tst_outputfile.moc"
