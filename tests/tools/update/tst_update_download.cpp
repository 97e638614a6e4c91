// Proves that a download shows how far it is, ends in the Downloads folder and is opened, and that
// one which is stopped or abandoned leaves nothing behind.

#include "UpdatePageTest.h"

#include <QProgressBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;
using namespace PageControls;

class TestUpdateDownload : public UpdatePageTest
{
    Q_OBJECT

private Q_SLOTS:
    void downloadsAndOpens();
    void stopsADownload();
    void goesAwayInTheMiddleOfADownload();
};

void TestUpdateDownload::downloadsAndOpens()
{
    publish(offered("1.3"));
    open(m_maker.publicKey);
    check();
    QSignalSpy ended(&m_jobs, &JobList::jobEnded);
    press(*m_view, "downloadButton");
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

void TestUpdateDownload::stopsADownload()
{
    publish(offered("1.3"));
    m_server.set("/files/new.bin", MakersServer::silent(HttpPeer::reply(m_file).first(100'000)));
    open(m_maker.publicKey);
    check();
    press(*m_view, "downloadButton");
    auto &bar = control<QProgressBar>(*m_view, "progressIndicator");
    QTRY_VERIFY(bar.value() > 100 && bar.value() < bar.maximum());
    press(*m_view, "stopButton");
    QTRY_VERIFY(says("Update.Result.Available"));
    QVERIFY(m_jobs.isEmpty() && downloads().isEmpty() && m_opened.isEmpty());
    m_server.set("/files/new.bin", m_file);
    press(*m_view, "downloadButton");
    QTRY_COMPARE(downloads(), QStringList{u"new.bin"_s});
}

void TestUpdateDownload::goesAwayInTheMiddleOfADownload()
{
    publish(offered("1.3"));
    m_server.set("/files/new.bin", MakersServer::silent(HttpPeer::reply(m_file).first(100'000)));
    open(m_maker.publicKey);
    check();
    press(*m_view, "downloadButton");
    QSignalSpy allEnded(&m_jobs, &JobList::allEnded);
    m_view.reset();
    QTRY_COMPARE(allEnded.size(), 1);
    m_jobs.stopAll();
    QVERIFY(downloads().isEmpty());
}

QTEST_MAIN(TestUpdateDownload)
#include "tst_update_download.moc"
