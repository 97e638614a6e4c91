// Proves that the page contacts no server before the user wants it, shows what came of it, and
// leaves the user's choices to the user.

#include "UpdatePageFixture.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;
using namespace PageControls;

class TestUpdatePage : public UpdatePageFixture
{
    Q_OBJECT

private Q_SLOTS:
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
};

QTEST_MAIN(TestUpdatePage)
#include "tst_update_page.moc"
