// Proves what a user of the page sees and loses: how the grant is given, refused, withdrawn and
// restored, the ticked folders and nothing else, and the page's states on the way.

#include "CacheRun.h"
#include "FileDescriptor.h"
#include "Files.h"
#include "JobList.h"
#include "MessageBoxes.h"
#include "PageControls.h"
#include "TestHome.h"
#include "UserCacheViewController.h"
#include "WithoutPrivilege.h"

#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QProgressBar>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTranslator>

#include <fcntl.h>
#include <pthread.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

using namespace PageControls;
using namespace Qt::StringLiterals;

namespace
{

/// What is below home, our own settings aside.
SampleTree::Snapshot homeNow()
{
    SampleTree::Snapshot items = SampleTree::snapshot(TestHome::path());
    items.removeIf([](auto item) { return item.key().startsWith("/.config"); });
    return items;
}

} // namespace

class UserCachePageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Every category's folder, and what is easily taken for one.
    void init()
    {
        TestHome::reset();
        for (const char *file :
             {"Library/Caches/a", "Library/Caches/deep/b", "Logs/c", "Downloads/d",
              "Mail Downloads/e", ".Trash/f", "Library/Logs/g", "Library/Mail Downloads/h",
              "Library/Caches.old/i", "downloads/j", "Documents/k", "l", "Trash/m"})
            TestHome::makeFile(file, 1536);
        SampleTree::makeLink(TestHome::path() + "/Downloads/to documents", "../Documents");
        m_boxes = std::make_unique<MessageBoxes>();
    }

    void fromTheGrantToACleanDisk()
    {
        open();
        press(*m_page, "authorizeButton");
        QCOMPARE(control<QFileDialog>(*m_page, "folderChooser").directory().path(),
                 MiscTool::getUserHome());
        answerChooser(*m_page, "folderChooser", MiscTool::getUserHome());
        QVERIFY(showsGrant());
        // On the disk at once, not when the program ends.
        QVERIFY(Files::read(QSettings().fileName()).contains("AuthorizedLocation="));

        open(); // a new start
        QVERIFY(showsGrant());
        QCOMPARE(text(*m_page, "userHomeField"), MiscTool::getUserHome());
        const SampleTree::Snapshot before = homeNow();
        tick("cachesCheckBox");
        tick("downloadsCheckBox");
        run("checkButton");
        QCOMPARE(title("downloadsCheckBox"), u"Downloads1.5 KB"_s);
        QCOMPARE(title("logsCheckBox"), u"Logs"_s);
        QCOMPARE(SampleTree::difference(before, homeNow()), QList<QByteArray>());

        control<QLabel>(*m_page, "diskTotalSize").clear();
        run("cleanButton");
        QVERIFY(!TestHome::exists("Library/Caches") && !TestHome::exists("Downloads"));
        QCOMPARE(title("downloadsCheckBox"), u"Downloads"_s);
        const auto total = MiscTool::getDiskTotalSize().value_or(0);
        QCOMPARE(control<QLabel>(*m_page, "diskTotalSize").text(),
                 MiscTool::convertBytes(static_cast<std::uint64_t>(total)));
        QCOMPARE(m_boxes->texts, QStringList());
    }

    // A refused folder or a cancelled chooser withdraws the grant until the next start: the image
    // and what is stored stay as they were.
    void withoutGrantNothingRuns()
    {
        const QString home = MiscTool::getUserHome();
        SampleTree::makeLink(TestHome::path() + "/Link", TestHome::path());
        const SampleTree::Snapshot before = homeNow();
        open();
        QVERIFY(!showsGrant());
        tick("logsCheckBox");
        expectRefusal("cleanButton");
        for (const QString &folder :
             {home + u"/Logs"_s, QFileInfo(home).path(), home + u"/Link"_s}) {
            TestHome::grant();
            open();
            authorize(folder);
            QCOMPARE(m_boxes->texts.last(), u"Wrong Authorized Location"_s);
            QCOMPARE(m_boxes->informativeTexts.last(), u"Please authorize to "_s + home);
            expectRefusal("checkButton");
        }
        authorize(home);
        run("checkButton");
        authorize({});
        QCOMPARE(m_boxes->texts.last(), u"Authorization Failed"_s);
        QCOMPARE(m_boxes->informativeTexts.last(), u"Please authorize again"_s);
        QVERIFY(showsGrant());
        expectRefusal("cleanButton");
        QCOMPARE(SampleTree::difference(before, homeNow()), QList<QByteArray>());
        open();
        run("checkButton");
    }

    void staleGrantCountsAsHeld()
    {
        const QByteArray folder = SampleTree::makeRoot() + "/folder";
        SampleTree::makeFile(folder + "/Logs/b", QByteArray(2048, 'x'));
        const QString name = QFile::decodeName(folder);
        StoredGrant::store(
            MiscTool::bookmarkForURL(QUrl::fromLocalFile(name)).value_or(QByteArray()));
        QVERIFY(QFile::rename(name, name + u".away"_s) && QDir().mkdir(name)); // another one
        open();
        QVERIFY(showsGrant());
        QCOMPARE(text(*m_page, "userHomeField"), QString());
        tick("logsCheckBox");
        run("checkButton");
        QCOMPARE(title("logsCheckBox"), u"Logs"_s);

        // Once the folder is back, so is the grant: each run tries it again.
        QVERIFY(QDir().rmdir(name) && QFile::rename(name + u".away"_s, name));
        run("checkButton");
        QCOMPARE(title("logsCheckBox"), u"Logs2.0 KB"_s);
        QCOMPARE(m_boxes->texts, QStringList());
    }

    void cleansJustTheTickedFolder()
    {
        for (const auto &[box, folder] :
             {std::pair("cachesCheckBox", QByteArray("/Library/Caches")),
              {"logsCheckBox", "/Logs"},
              {"downloadsCheckBox", "/Downloads"},
              {"mailDownloadCheckBox", "/Mail Downloads"},
              {"trashCheckBox", "/.Trash"}}) {
            init();
            TestHome::grant();
            open();
            tick(box);
            SampleTree::Snapshot expected = homeNow();
            expected.removeIf([below = folder](auto item) {
                return item.key() == below || item.key().startsWith(below + '/');
            });
            QCOMPARE_NE(expected.size(), homeNow().size());
            run("cleanButton");
            QCOMPARE(SampleTree::difference(expected, homeNow()), QList<QByteArray>());
        }
    }

    // A clean is idle once early. Who presses Check just then must see the page busy until that
    // check is through, though the clean still has updates of its own on the way.
    void pressInTheEarlyIdleMoment()
    {
        TestHome::grant();
        open();
        tick("downloadsCheckBox");
        press(*m_page, "cleanButton");
        bool isPressed = false;
        // Connected after the page itself, so this sees the page as each update left it.
        connect(m_jobs.findChild<CacheRun *>(), &CacheRun::updated, this, [&] {
            const bool isUsable = control<QPushButton>(*m_page, "checkButton").isEnabled();
            QVERIFY(!isPressed || !isUsable);
            if (isUsable)
                press(*m_page, "checkButton");
            isPressed = isPressed || isUsable;
        });
        QTRY_VERIFY_WITH_TIMEOUT(isPressed && isIdle(), timeout);
        QVERIFY(!TestHome::exists("Downloads") && TestHome::exists("Logs/c"));
    }

    void saysWhatItFoundFreedAndLeft()
    {
        QTranslator english;
        QVERIFY(english.load(u":/localisation/toolvane_en.qm"_s));
        QCoreApplication::installTranslator(&english);
        const QByteArray home = TestHome::path();
        std::filesystem::remove_all((home + "/Logs").toStdString());
        std::filesystem::remove_all((home + "/Mail Downloads").toStdString());
        std::filesystem::remove_all((home + "/Downloads").toStdString());
        SampleTree::makeFolder(home + "/Downloads");
        TestHome::makeFile("Mail Downloads", 1536);
        TestHome::grant();
        open();
        for (const char *box : boxes)
            tick(box);
        const WithoutPrivilege plainUser; // the worker inherits it
        const auto permit = [&home](mode_t mode) {
            QCOMPARE(chmod((home + "/.Trash").constData(), mode), 0);
            QCOMPARE(chmod((home + "/Library/Caches/deep").constData(), mode), 0);
        };
        permit(0);
        run("checkButton");
        QCOMPARE(results(),
                 QStringList({u"Some of it cannot be read"_s, u"Not there"_s, u"0 bytes"_s,
                              u"Not a folder"_s, u"Cannot be read"_s}));
        run("cleanButton");
        permit(0700);
        QCOMPARE(results(),
                 QStringList({u"1.5 KB freed, some stayed: no permission"_s, u"Not there"_s,
                              u"0 bytes freed"_s, u"1.5 KB freed"_s,
                              u"Nothing deleted: no permission"_s}));
        QVERIFY(TestHome::exists(".Trash/f") && TestHome::exists("Library/Caches/deep/b"));
        QCOMPARE(title("cachesCheckBox"), u"Caches "_s);
        QVERIFY(control<QCheckBox>(*m_page, "mailDownloadCheckBox")
                    .toolTip()
                    .contains(MiscTool::getUserHome() + u"/Mail Downloads"_s));
        // What is said of a folder is gone with the next run that looks at it.
        for (const char *box : {"logsCheckBox", "downloadsCheckBox"})
            tick(box, false);
        run("checkButton");
        QCOMPARE(results(),
                 QStringList({{}, u"Not there"_s, u"0 bytes freed"_s, u"Not there"_s, {}}));
    }

    // As when the system's limit of threads is met: none gets a stack.
    void goesOnWithoutThreads()
    {
        TestHome::grant();
        open();
        tick("logsCheckBox");
        pthread_attr_t before;
        QCOMPARE(pthread_getattr_default_np(&before), 0);
        pthread_attr_t huge;
        QCOMPARE(pthread_attr_init(&huge), 0);
        QCOMPARE(pthread_attr_setstacksize(&huge, std::size_t(1) << 50), 0);
        for (const char *button : {"checkButton", "cleanButton"}) {
            QSignalSpy ended(&m_jobs, &JobList::jobEnded);
            QCOMPARE(pthread_setattr_default_np(&huge), 0);
            press(*m_page, button);
            QCOMPARE(pthread_setattr_default_np(&before), 0);
            QTRY_VERIFY_WITH_TIMEOUT(isIdle(), timeout);
            QCOMPARE(ended.first().at(1).value<JobOutcome>(), JobOutcome::Failed);
            QCOMPARE(status(), u"UserCache.NoThread"_s);
        }
        QVERIFY(TestHome::exists("Logs/c"));
        run("cleanButton");
        QCOMPARE(status(), QString());
        QVERIFY(!TestHome::exists("Logs"));
    }

    // A file system whose server never says a word holds whoever looks into it.
    void stopDoesNotWaitForAMountThatNeverAnswers()
    {
        SampleTree::makeFolder(TestHome::path() + "/Downloads/server");
        FileDescriptor server(::open("/dev/fuse", O_RDWR | O_CLOEXEC));
        const QByteArray options = "fd=" + QByteArray::number(server.get())
            + ",rootmode=40000,user_id=" + QByteArray::number(getuid())
            + ",group_id=" + QByteArray::number(getgid());
        if (!server || unshare(CLONE_NEWNS) != 0
            || mount("", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0
            || mount("hanging", (TestHome::path() + "/Downloads/server").constData(), "fuse", 0,
                     options.constData())
                != 0)
            QSKIP(qPrintable(u"may not mount: "_s + qt_error_string(errno)));
        const auto unmount = qScopeGuard([&server] { // wakes the thread that was left behind
            umount2((TestHome::path() + "/Downloads/server").constData(), MNT_DETACH);
            server.close();
        });
        TestHome::grant();
        open();
        tick("downloadsCheckBox");
        QSignalSpy ended(&m_jobs, &JobList::jobEnded);
        press(*m_page, "checkButton");
        QTest::qWait(200); // it hangs by then; if not, stopping is quicker still
        m_jobs.stopAll();
        QTRY_VERIFY_WITH_TIMEOUT(isIdle(), timeout);
        QCOMPARE(ended.first().at(1).value<JobOutcome>(), JobOutcome::Stopped);
        QCOMPARE(status(), u"UserCache.NoAnswer"_s);
        tick("downloadsCheckBox", false);
        tick("logsCheckBox");
        run("cleanButton");
        QVERIFY(!TestHome::exists("Logs"));
    }

    // The chooser hands out the path as it is written properly.
    void homeWithNeedlessSlashesAndDots()
    {
        const QString users = qEnvironmentVariable("NSS_WRAPPER_PASSWD");
        const QByteArray before = Files::read(users);
        const QString home = MiscTool::getUserHome();
        const QString odd = QFileInfo(home).path() + u"//"_s + QFileInfo(home).fileName() + u"/."_s;
        const auto restore = qScopeGuard([&] { Files::write(users, before); });
        Files::write(users, QByteArray(before).replace(home.toUtf8() + ':', odd.toUtf8() + ':'));
        QCOMPARE(MiscTool::getUserHome(), odd);
        open();
        authorize(home);
        QVERIFY(showsGrant());
        QCOMPARE(m_boxes->texts, QStringList());
        tick("logsCheckBox");
        press(*m_page, "cleanButton");
        QTRY_VERIFY_WITH_TIMEOUT(isIdle(), timeout);
        QVERIFY(!TestHome::exists("Logs") && TestHome::exists("Documents/k"));
    }

    // As on quitting: the run stays listed until its thread has ended.
    void pageDestroyedWhileItRuns()
    {
        SampleTree::makeNested(TestHome::path() + "/Library/Caches", 10, 50);
        TestHome::grant();
        open();
        QSignalSpy ended(&m_jobs, &JobList::jobEnded);
        tick("cachesCheckBox");
        press(*m_page, "cleanButton");
        m_page.reset();
        QVERIFY(!m_jobs.isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(m_jobs.isEmpty(), timeout);
        QCOMPARE(ended.first().at(1).value<JobOutcome>(), JobOutcome::Stopped);
        QVERIFY(TestHome::exists("Documents/k"));
    }

private:
    static constexpr auto boxes = {"cachesCheckBox", "logsCheckBox", "downloadsCheckBox",
                                   "mailDownloadCheckBox", "trashCheckBox"};
    static constexpr int timeout = 30'000; ///< Milliseconds, on a machine that has much to do.

    void open()
    {
        m_page = std::make_unique<UserCacheViewController>(m_jobs);
        m_page->setVisible(true);
    }
    QString title(const char *checkBox) const
    {
        return control<QCheckBox>(*m_page, checkBox).text();
    }
    void tick(const char *checkBox, bool ticked = true) const
    {
        control<QCheckBox>(*m_page, checkBox).setChecked(ticked);
    }
    QStringList results() const
    {
        QStringList texts;
        for (const char *name :
             {"cachesResult", "logsResult", "downloadsResult", "mailDownloadResult", "trashResult"})
            texts += control<QLabel>(*m_page, name).text();
        return texts;
    }
    QString status() const { return control<QLabel>(*m_page, "statusLabel").text(); }
    bool showsGrant() const
    {
        return control<QWidget>(*m_page, "authorizeStatusButton").accessibleName()
            == "UserCache.Authorized"_L1;
    }
    void authorize(const QString &folder) const
    {
        press(*m_page, "authorizeButton");
        answerChooser(*m_page, "folderChooser", folder);
    }

    void expectRefusal(const char *button)
    {
        press(*m_page, button);
        QVERIFY(isIdle());
        QCOMPARE(m_boxes->texts.last(), u"Not Authorized Error"_s);
        QCOMPARE(m_boxes->informativeTexts.last(), u"Please authorize first"_s);
    }

    static QStringList controls()
    {
        return {u"authorizeButton"_s, u"cachesCheckBox"_s, u"downloadsCheckBox"_s,
                u"trashCheckBox"_s,   u"logsCheckBox"_s,   u"mailDownloadCheckBox"_s,
                u"checkButton"_s,     u"cleanButton"_s};
    }
    bool isIdle() const
    {
        return m_jobs.isEmpty() && enabledOf(*m_page, controls()) == controls()
            && control<QWidget>(*m_page, "progressIndicatorBox").isHidden();
    }
    /// Presses the button, which returns at once, and waits until the work has ended.
    void run(const char *button)
    {
        QSignalSpy ended(&m_jobs, &JobList::jobEnded);
        if (QByteArrayView(button) == "checkButton")
            QTest::keyClick(&control<QWidget>(*m_page, "trashCheckBox"), Qt::Key_Return);
        else
            press(*m_page, button);
        QCOMPARE(enabledOf(*m_page, controls()), QStringList());
        QVERIFY(control<QWidget>(*m_page, "progressIndicatorBox").isVisible());
        QCOMPARE(control<QProgressBar>(*m_page, "progressIndicator").maximum(), 0); // moving
        const JobDescription job = m_jobs.running().front().description;
        QCOMPARE(job.page, m_page->objectName());
        QCOMPARE(job.subject, MiscTool::getUserHome());
        QTRY_VERIFY_WITH_TIMEOUT(isIdle(), timeout);
        QCOMPARE(ended.first().at(1).value<JobOutcome>(), JobOutcome::Succeeded);
    }

    JobList m_jobs;
    std::unique_ptr<MessageBoxes> m_boxes;
    std::unique_ptr<UserCacheViewController> m_page;
};

QTEST_MAIN(UserCachePageTest)
#include "tst_usercache_page.moc"
