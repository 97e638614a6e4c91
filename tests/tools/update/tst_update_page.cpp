// Proves that the page contacts no server before the user wants it, shows what came of it, leaves
// the user's choices to the user, and that a download which is stopped or abandoned leaves nothing
// behind.

#include "JobList.h"
#include "Maker.h"
#include "MakersServer.h"
#include "MiscTool.h"
#include "PageControls.h"
#include "UpdateViewController.h"

#include <QDesktopServices>
#include <QDir>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSettings>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace PageControls;

class TestUpdatePage : public QObject
{
    Q_OBJECT

public Q_SLOTS:
    void noteOpened(const QUrl &url) { m_opened += url; }

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName("Toolvane"_L1);
        QCoreApplication::setApplicationName("UpdateTest"_L1);
        QCoreApplication::setApplicationVersion("1.2.0"_L1);
        QVERIFY(MiscTool::getUserHome().startsWith(qEnvironmentVariable("TOOLVANE_TEST_SANDBOX")));
        QVERIFY(m_texts.load(":/localisation/toolvane_en.qm"_L1));
        QCoreApplication::installTranslator(&m_texts);
        QDesktopServices::setUrlHandler("file"_L1, this, "noteOpened");
    }
    void init()
    {
        QSettings().clear();
        useServer();
        QDir(MiscTool::getDownloadFolder()).removeRecursively();
        m_server.set("/files/new.bin", m_file);
        m_opened.clear();
    }
    void cleanup() { m_view.reset(); }
    void cleanupTestCase() { QDesktopServices::unsetUrlHandler("file"_L1); }

    void contactsNoServerUnasked()
    {
        QSettings().remove(u"Addresses/UpdateFeed"_s);
        open(m_maker.publicKey);
        QVERIFY(says("Update.NoFeed") && isShown("detailLabel"));
        useServer();
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

        open({}); // built without the maker's key: nothing can be trusted, so nothing is fetched
        m_server.set("/feed.xml", Maker::feed(offered("1.3")));
        check();
        QVERIFY(says("Update.Result.Available"));
        QCOMPARE(label("detailLabel"), qtTrId("Update.NoKey"));
        QVERIFY(!isShown("downloadButton"));
    }

    void showsWhatWentWrong()
    {
        open(m_maker.publicKey);
        for (const auto &[headline, detail, reply] :
             {std::tuple("Update.Result.NotReached", qtTrId("Update.Problem.Status").arg(503),
                         HttpPeer::reply("", "503 No")),
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
        const QUrl file = QUrl::fromLocalFile(MiscTool::getDownloadFolder() + u"/new.bin"_s);
        QCOMPARE(m_opened, QList<QUrl>{file});
        press(*m_view, "openButton");
        QCOMPARE(m_opened.size(), 2);
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
        QVERIFY(m_jobs.isEmpty() && downloads().isEmpty() && m_opened.isEmpty());
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
    QStringList downloads() const
    {
        return QDir(MiscTool::getDownloadFolder())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    QTranslator m_texts;
    Maker m_maker;
    MakersServer m_server;
    JobList m_jobs;
    QByteArray m_file = QByteArray(200'000, 'n');
    QList<QUrl> m_opened;
    std::unique_ptr<UpdateCheckView> m_view;
};

QTEST_MAIN(TestUpdatePage)
#include "tst_update_page.moc"
