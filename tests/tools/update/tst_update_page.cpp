// Proves that the page contacts no server before the user wants it, shows what came of it, leaves
// the user's choices to the user, and that a download which is stopped or abandoned leaves nothing
// behind.

#include "Files.h"
#include "JobList.h"
#include "Maker.h"
#include "MakersServer.h"
#include "MiscTool.h"
#include "PageControls.h"
#include "UpdateViewController.h"

#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace PageControls;

class TestUpdatePage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName("Toolvane"_L1);
        QCoreApplication::setApplicationName("UpdateTest"_L1);
        QCoreApplication::setApplicationVersion("1.2.0"_L1);
        QVERIFY(MiscTool::getUserHome().startsWith(qEnvironmentVariable("TOOLVANE_TEST_SANDBOX")));
        QVERIFY(m_texts.load(":/localisation/toolvane_en.qm"_L1));
        QCoreApplication::installTranslator(&m_texts);
        // The desktop's opener: notes what it gets and ends as the test wants.
        Files::write(
            m_programs.filePath(u"xdg-open"_s),
            "#!/bin/sh\necho \"$1\" >> \"${0%/*}/opened\"\nexit $(cat \"${0%/*}/status\")\n");
        QFile::setPermissions(m_programs.filePath(u"xdg-open"_s),
                              QFile::ReadOwner | QFile::ExeOwner);
        qputenv("PATH", QFile::encodeName(m_programs.path()) + ':' + qgetenv("PATH"));
        // A desktop in another language has other folders.
        const QDir settings(qEnvironmentVariable("XDG_CONFIG_HOME"));
        QVERIFY(settings.mkpath(u"."_s));
        Files::write(settings.filePath(u"user-dirs.dirs"_s),
                     "XDG_DOWNLOAD_DIR=\"$HOME/T\xc3\xa9l\xc3\xa9"
                     "chargements\"\n");
    }
    void init()
    {
        QSettings().clear();
        useServer();
        downloadFolder().removeRecursively();
        m_server.set("/files/new.bin", m_file);
        Files::write(m_programs.filePath(u"opened"_s), {});
        letOpenerEndWith("0");
    }
    void cleanup() { m_view.reset(); }

    void contactsNoServerUnasked()
    {
        QSettings().remove(u"Addresses/UpdateFeed"_s);
        open(m_maker.publicKey);
        QVERIFY(says("Update.NoFeed") && isShown("detailLabel"));
        QVERIFY(!control<QPushButton>(*m_view, "checkButton").isEnabled());
        useServer();
        m_view->hide(); // the user has written the address and comes back
        m_view->show();
        QVERIFY(control<QPushButton>(*m_view, "checkButton").isEnabled());
        const qsizetype before = m_server.paths().size();
        publish("");
        open(m_maker.publicKey);
        QCoreApplication::processEvents();
        QVERIFY(says("Update.Unasked"));
        QCOMPARE(m_server.paths().size(), before);
        QVERIFY(!isShown("lastCheckLabel"));
        check();
        QCOMPARE(m_server.paths().size(), before + 1);
        QVERIFY(says("Update.Result.UpToDate"));
        QVERIFY(!isShown("offerBox"));
        open(m_maker.publicKey); // after a restart the last check is still known
        QVERIFY(says("Update.Unasked"));
        QVERIFY(label("lastCheckLabel").endsWith(qtTrId("Update.Result.UpToDate")));
        QCOMPARE(m_server.paths().size(), before + 1);
    }

    void offersSkipsAndOffersAgain()
    {
        publish(offered("1.3") + offered("1.1"));
        open(m_maker.publicKey);
        check();
        QVERIFY(says("Update.Result.Available"));
        press(*m_view, "skipButton");
        QVERIFY(says("Update.Result.Skipped"));
        QVERIFY(!isShown("downloadButton"));
        publish(offered("1.3") + offered("1.4"));
        check();
        QVERIFY(says("Update.Result.Available", u"1.4"_s));
        publish(offered("1.3"));
        check();
        QVERIFY(says("Update.Result.Skipped"));
        press(*m_view, "unskipButton");
        QVERIFY(isShown("downloadButton"));
    }

    void showsPlainTextAndNoDownloadWithoutAKey()
    {
        publish(offered("1.3",
                        "<c:shortVersionString>&lt;b&gt;1.3&lt;/b&gt; %1</c:shortVersionString>"
                        "<description>&lt;p&gt;one&lt;/p&gt;&lt;img src='file:///x'&gt;"
                        "&lt;script&gt;two&lt;/script&gt;&lt;p&gt;three</description>"));
        open(m_maker.publicKey);
        check();
        QVERIFY(says("Update.Result.Available", u"<b>1.3</b> %1"_s));
        for (const char *name : {"headlineLabel", "detailLabel", "lastCheckLabel", "progressLabel"})
            QCOMPARE(control<QLabel>(*m_view, name).textFormat(), Qt::PlainText);
        const QString notes = control<QPlainTextEdit>(*m_view, "notesText").toPlainText();
        QVERIFY2(notes.startsWith(u"one"_s) && notes.endsWith(u"three"_s), qPrintable(notes));
        QVERIFY(!notes.contains(u'<'));

        QVERIFY(!isShown("keyLabel"));
        open({}); // built without the maker's key: nothing can be trusted, so nothing is fetched
        m_server.set("/feed.xml", Maker::feed(offered("1.3")));
        check();
        QVERIFY(says("Update.Result.Available"));
        QVERIFY(isShown("keyLabel") && !isShown("detailLabel")); // said once
        QVERIFY(!isShown("downloadButton"));
    }

    void showsWhatWentWrong()
    {
        open(m_maker.publicKey);
        for (const auto &[headline, detail, reply] :
             {std::tuple("Update.Result.NotChecked", qtTrId("Update.Problem.Status").arg(503),
                         HttpPeer::reply("", "503 No")),
              {"Update.Result.NotChecked", qtTrId("Update.Problem.Garbled"), "garbage\r\n\r\n"},
              {"Update.Result.NotReached", qtTrId("Update.Problem.Unreachable"), ""},
              {"Update.Result.NotTrusted", qtTrId("Update.Problem.WrongSignature"),
               HttpPeer::reply(Maker().sealed(Maker::feed(offered("1.3"))))}}) {
            publish(offered("1.3"));
            check();
            QVERIFY(isShown("offerBox"));
            m_server.set("/feed.xml", MakersServer::raw(reply));
            check();
            QVERIFY(says(headline));
            QCOMPARE(label("detailLabel"), detail);
            QVERIFY(!isShown("offerBox"));
        }
    }

    void remembersWhatTheMakerTookBack()
    {
        const QByteArray old = m_maker.sealed(Maker::feed(offered("1.3")));
        m_server.set("/feed.xml", old);
        open(m_maker.publicKey);
        check();
        publish(Maker::withdrawn("1.3"), "Tue, 03 Mar 2026 10:00:00 +0000");
        check();
        QVERIFY(says("Update.Result.UpToDate"));
        open(m_maker.publicKey);
        m_server.set("/feed.xml", old);
        check();
        QCOMPARE(label("detailLabel"), qtTrId("Update.Problem.Older"));
        publish(offered("1.3"), "Wed, 04 Mar 2026 10:00:00 +0000");
        check();
        QVERIFY(says("Update.Result.UpToDate"));
        open(Maker().publicKey); // another key, another maker: nothing is known of the first one's
        check();
        QCOMPARE(label("detailLabel"), qtTrId("Update.Problem.WrongSignature"));
    }

    // Another program sees a newer feed while this one waits for its own.
    void letsTheMemoryOfFeedsOnlyGoForward()
    {
        publish("", "Tue, 03 Mar 2026 10:00:00 +0000");
        open(m_maker.publicKey);
        check();
        const QString key = QSettings().allKeys().filter(u"NewestFeed"_s).value(0);
        const QString newer = u"2026-03-05T10:00:00Z"_s;
        const QByteArray feed =
            m_maker.sealed(Maker::feed(offered("1.3"), "Wed, 04 Mar 2026 10:00:00 +0000"));
        m_server.set("/feed.xml", [=](HttpPeer::Connection &connection) {
            QSettings().setValue(key, newer);
            connection.send(HttpPeer::reply(feed));
        });
        check();
        QCOMPARE(label("detailLabel"), qtTrId("Update.Problem.Older"));
        QVERIFY(!isShown("offerBox"));
        QCOMPARE(QSettings().value(key).toString(), newer);
    }

    void saysOfWhenTheFeedIsAndWarnsPastItsExpiry()
    {
        open(m_maker.publicKey);
        for (const bool isOffered : {false, true}) {
            m_server.set("/feed.xml",
                         m_maker.sealed(Maker::feed(isOffered ? offered("1.3") : QByteArray(),
                                                    "Mon, 02 Mar 2020 10:00:00 +0000",
                                                    "Wed, 02 Sep 2020 10:00:00 +0000")));
            check();
            QVERIFY(says(isOffered ? "Update.Result.Available" : "Update.Result.Expired"));
            QCOMPARE(label("detailLabel"), qtTrId("Update.Expired").arg(shown({2020, 9, 2})));
            QVERIFY(label("lastCheckLabel")
                        .endsWith(qtTrId("Update.FeedDate").arg(shown({2020, 3, 2}))));
        }
        publish("");
        check();
        QVERIFY(says("Update.Result.UpToDate") && !isShown("detailLabel"));
    }

    void hasASentenceForEachProblem()
    {
        for (int kind = 1; kind <= int(UpdateProblem::Kind::Stopped); ++kind) {
            const QString sentence = UpdateProblem{UpdateProblem::Kind(kind), u"why"_s}.sentence();
            QVERIFY2(sentence.endsWith(u'.') && !sentence.contains(u'%'), qPrintable(sentence));
        }
    }

    void checksDownloadsAndOpensOnReturn()
    {
        publish(offered("1.3"));
        open(m_maker.publicKey);
        QTest::keyClick(m_view.get(), Qt::Key_Return);
        QTRY_VERIFY(says("Update.Result.Available"));
        QSignalSpy ended(&m_jobs, &JobList::jobEnded);
        QTest::keyClick(m_view.get(), Qt::Key_Return);
        QCOMPARE(m_jobs.running().size(), 1U);
        QVERIFY(!control<QPushButton>(*m_view, "checkButton").isEnabled());
        QTRY_VERIFY(says("Update.Downloaded"));
        QCOMPARE(ended.value(0).value(1).value<JobOutcome>(), JobOutcome::Succeeded);
        QCOMPARE(downloads(), QStringList{u"new.bin"_s});
        const QString file = downloadFolder().filePath(u"new.bin"_s);
        QVERIFY(file.endsWith(u"/T\u00e9l\u00e9chargements/new.bin"_s));
        QTRY_COMPARE(opened(), QStringList{file});
        QCOMPARE(text(*m_view, "fileField"), file);
        QVERIFY(isShown("showInFolderButton"));
        check(); // what is there already is not offered again
        QVERIFY(says("Update.Downloaded") && !isShown("downloadButton"));
        QCOMPARE(text(*m_view, "fileField"), file);
        press(*m_view, "openButton");
        QTRY_COMPARE(opened(), (QStringList{file, file}));
        letOpenerEndWith("3");
        press(*m_view, "openButton");
        QTRY_VERIFY(says("Update.NotOpened"));
        QCOMPARE(label("detailLabel"), qtTrId("Update.Problem.NothingOpens"));
        QVERIFY(isShown("showInFolderButton") && isShown("fileField"));
    }

    // By itself or by the button, only what was checked is opened.
    void opensNothingElse()
    {
        publish(offered("1.3"));
        open(m_maker.publicKey);
        check();
        press(*m_view, "downloadButton");
        QTRY_COMPARE(opened().size(), 1);
        const QString folder = downloadFolder().path();
        QVERIFY(QDir().rename(folder, folder + u" 2"_s) && QDir().mkdir(folder));
        Files::write(folder + u"/new.bin"_s, m_file);
        press(*m_view, "openButton");
        QTRY_VERIFY(says("Update.NotOpened"));
        QCOMPARE(label("detailLabel"), qtTrId("Update.Problem.Changed"));
        QVERIFY(!isShown("openButton") && !isShown("showInFolderButton"));
        QCOMPARE(opened().size(), 1);
        check();
        QVERIFY(says("Update.Result.Available"));
        press(*m_view, "downloadButton"); // beside the false one
        QTRY_COMPARE(opened().value(1), folder + u"/new 2.bin"_s);
        QVERIFY(QDir(folder + u" 2"_s).removeRecursively());
    }

    void stopsADownloadAndLeavesNothingBehind()
    {
        publish(offered("1.3"));
        m_server.set("/files/new.bin",
                     MakersServer::silent(HttpPeer::reply(m_file).first(100'000)));
        open(m_maker.publicKey);
        check();
        press(*m_view, "downloadButton");
        auto &bar = control<QProgressBar>(*m_view, "progressIndicator");
        QTRY_VERIFY(bar.value() > 100 && bar.value() < bar.maximum());
        press(*m_view, "stopButton");
        QTRY_VERIFY(says("Update.Result.Available"));
        QVERIFY(m_jobs.isEmpty() && downloads().isEmpty() && opened().isEmpty());
        press(*m_view, "downloadButton");
        m_view.reset(); // goes away in the middle
        QTRY_VERIFY(m_jobs.isEmpty());
        QVERIFY(downloads().isEmpty());
    }

private:
    void open(const QByteArray &key)
    {
        m_view = std::make_unique<UpdateCheckView>(key, nullptr);
        m_view->setJobs(m_jobs, "Page"_L1);
        m_view->show();
    }
    void useServer() const
    {
        QSettings().setValue("Addresses/UpdateFeed"_L1,
                             QString::fromLatin1(m_server.address("/feed.xml")));
    }
    void publish(const QByteArray &items,
                 const QByteArray &date = "Mon, 02 Mar 2026 10:00:00 +0000")
    {
        m_server.set("/feed.xml", m_maker.sealed(Maker::feed(items, date)));
    }
    QByteArray offered(const QByteArray &version, const QByteArray &more = {}) const
    {
        return m_maker.item(version, m_server.address("/files/new.bin"), m_file, more);
    }
    void check()
    {
        press(*m_view, "checkButton");
        QTRY_VERIFY(control<QPushButton>(*m_view, "checkButton").isEnabled());
    }
    QString label(const char *name) const { return control<QLabel>(*m_view, name).text(); }
    /// Whether the sentence in bold is this one.
    bool says(const char *key, const QString &version = "1.3"_L1) const
    {
        const QString text = qtTrId(key);
        return label("headlineLabel") == (text.contains("%1"_L1) ? text.arg(version) : text);
    }
    bool isShown(const char *name) const { return control<QWidget>(*m_view, name).isVisible(); }
    static QString shown(QDate date)
    {
        return QLocale().toString(QDateTime(date, QTime(10, 0), Qt::UTC).toLocalTime(),
                                  QLocale::ShortFormat);
    }
    static QDir downloadFolder()
    {
        return QDir(QStandardPaths::writableLocation(QStandardPaths::DownloadLocation));
    }
    QStringList opened() const
    {
        return QString::fromUtf8(Files::read(m_programs.filePath(u"opened"_s)))
            .split(u'\n', Qt::SkipEmptyParts);
    }
    void letOpenerEndWith(const QByteArray &status) const
    {
        Files::write(m_programs.filePath(u"status"_s), status);
    }
    QStringList downloads() const
    {
        return downloadFolder().entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTranslator m_texts;
    Maker m_maker;
    MakersServer m_server;
    JobList m_jobs;
    QByteArray m_file = QByteArray(200'000, 'n');
    QTemporaryDir m_programs;
    std::unique_ptr<UpdateCheckView> m_view;
};

QTEST_MAIN(TestUpdatePage)
#include "tst_update_page.moc"
