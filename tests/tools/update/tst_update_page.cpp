// Proves that the page asks nobody before the user does, tells what came of it, and leaves the
// user's choices to the user.

#include "UpdatePageTest.h"
#include "UpdateViewController.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;
using namespace PageControls;

class TestUpdatePage : public UpdatePageTest
{
    Q_OBJECT

private Q_SLOTS:
    void saysHowToSetAnAddress();
    void asksOnlyWhenAsked();
    void offersSkipsAndOffersAgain();
    void showsServerTextsAsPlainText();
    void offersNoDownloadWithoutAKey();
    void tellsWhatWentWrong_data();
    void tellsWhatWentWrong();
    void remembersWhatTheMakerTookBack();
    void returnStartsTheMainAction();
    void pageHoldsItsLabelAndListsDownloads();
};

void TestUpdatePage::saysHowToSetAnAddress()
{
    QSettings().remove(u"Addresses/UpdateFeed"_s);
    open(m_maker.publicKey);
    QVERIFY(says("Update.NoFeed"));
    QVERIFY(isShown("detailLabel"));
    publish("");
    QSettings().setValue(u"Addresses/UpdateFeed"_s,
                         QString::fromLatin1(m_server.address("/feed.xml")));
    check();
    QVERIFY(says("Update.Result.UpToDate"));
}

void TestUpdatePage::asksOnlyWhenAsked()
{
    const qsizetype before = m_server.paths().size();
    publish("");
    open(m_maker.publicKey);
    QTest::qWait(50);
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

void TestUpdatePage::offersSkipsAndOffersAgain()
{
    publish(offered("1.3") + offered("1.1"));
    open(m_maker.publicKey);
    check();
    QVERIFY(says("Update.Result.Available"));
    press(*m_view, "skipButton");
    QVERIFY(says("Update.Result.Skipped"));
    QVERIFY(!isShown("downloadButton"));
    check();
    QVERIFY(says("Update.Result.Skipped"));
    publish(offered("1.3") + offered("1.4"));
    check();
    QVERIFY(says("Update.Result.Available", u"1.4"_s));
    publish(offered("1.3"));
    check();
    press(*m_view, "unskipButton");
    QVERIFY(isShown("downloadButton"));
    check();
    QVERIFY(says("Update.Result.Available"));
}

void TestUpdatePage::showsServerTextsAsPlainText()
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
}

void TestUpdatePage::offersNoDownloadWithoutAKey()
{
    m_server.set("/feed.xml", Maker::feed(offered("1.3")));
    open({});
    check();
    QVERIFY(says("Update.Result.Available"));
    QCOMPARE(label("detailLabel"), qtTrId("Update.NoKey"));
    QVERIFY(!isShown("downloadButton"));
}

void TestUpdatePage::tellsWhatWentWrong_data()
{
    QTest::addColumn<QByteArray>("reply");
    QTest::addColumn<QByteArray>("headline");
    QTest::addColumn<QString>("detail");
    QTest::newRow("error") << HttpPeer::reply("", "503 No")
                           << QByteArray("Update.Result.NotReached")
                           << qtTrId("Update.Problem.Status").arg(503);
    QTest::newRow("hangs up") << QByteArray() << QByteArray("Update.Result.NotReached")
                              << qtTrId("Update.Problem.Unreachable");
    QTest::newRow("wrong key") << HttpPeer::reply(Maker().sealed(Maker::feed(offered("1.3"))))
                               << QByteArray("Update.Result.NotTrusted")
                               << qtTrId("Update.Problem.WrongSignature");
}

void TestUpdatePage::tellsWhatWentWrong()
{
    QFETCH(QByteArray, reply);
    publish(offered("1.3"));
    open(m_maker.publicKey);
    check();
    m_server.set("/feed.xml", MakersServer::raw(reply));
    check();
    QFETCH(QByteArray, headline);
    QVERIFY(says(headline.constData()));
    QTEST(label("detailLabel"), "detail");
    QVERIFY(!isShown("offerBox"));
}

void TestUpdatePage::remembersWhatTheMakerTookBack()
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

void TestUpdatePage::returnStartsTheMainAction()
{
    publish(offered("1.3"));
    open(m_maker.publicKey);
    QTest::keyClick(m_view.get(), Qt::Key_Return);
    QTRY_VERIFY(says("Update.Result.Available"));
    QVERIFY(control<QPushButton>(*m_view, "downloadButton").isDefault());
    QTest::keyClick(m_view.get(), Qt::Key_Return);
    QTRY_VERIFY(says("Update.Downloaded"));
}

void TestUpdatePage::pageHoldsItsLabelAndListsDownloads()
{
    UpdateViewController page(m_jobs);
    QCOMPARE(control<QLabel>(page, "updateLabel").text(), qtTrId("Update"));
    QVERIFY(control<QWidget>(page, "updateCheck").findChild<QPushButton *>(u"checkButton"_s));
}

QTEST_MAIN(TestUpdatePage)
#include "tst_update_page.moc"
