// Proves that a download goes where the desktop keeps them, that nothing is opened but what was
// checked, and that one which is stopped or abandoned leaves nothing behind.

#include "UpdatePageFixture.h"

#include <QProgressBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace PageControls;

class TestUpdateDownload : public UpdatePageFixture
{
    Q_OBJECT

private Q_SLOTS:
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
};

QTEST_MAIN(TestUpdateDownload)
#include "tst_update_download.moc"
