// Proves that a feed of any origin is read for what it says or refused, and never more than that.

#include "Maker.h"
#include "UpdateFeed.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;

class TestUpdateFeed : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsWhatTheMakerWrote()
    {
        const Maker maker;
        const QByteArray more =
            "<title>whatever</title><c:shortVersionString>2 &lt;b&gt;</c:shortVersionString>"
            "<c:minimumSystemVersion>5.10</c:minimumSystemVersion><c:channel>beta</c:channel>"
            "<description c:format=\"plain-text\">a &amp; b</description><c:deltas>"
            "<enclosure url=\"https://no/\"/></c:deltas>";
        const auto feed = UpdateFeed::read(Maker::feed(
            maker.item("1.20.0", "https://h/f", "file", more) + Maker::withdrawn("1.10"),
            "Mon, 02 Mar 2026 12:00:00 +0200"));
        QVERIFY(feed);
        QCOMPARE(feed->date, QDateTime(QDate(2026, 3, 2), QTime(10, 0), Qt::UTC));
        QCOMPARE(feed->items.size(), 2);
        const UpdateItem &item = feed->items.first();
        QCOMPARE(item.version, QVersionNumber(1, 20));
        QCOMPARE(item.shortVersion, u"2 <b>"_s);
        QCOMPARE(item.minimumSystem, QVersionNumber(5, 10));
        QCOMPARE(item.channel, u"beta"_s);
        QCOMPARE(item.notes, u"a & b"_s);
        QCOMPARE(item.notesFormat, UpdateItem::NotesFormat::Plain);
        QCOMPARE(item.address, "https://h/f");
        QCOMPARE(item.length, 4);
        QCOMPARE(item.signature, maker.sign("file"));
        QVERIFY(!item.withdrawn);
        QVERIFY(feed->items.at(1).withdrawn);
        QCOMPARE(feed->items.at(1).shortVersion, u"1.10"_s);
    }

    void readsVersionsOnTheEnclosureToo()
    {
        const auto feed = UpdateFeed::read(
            Maker::feed("<item><description>&lt;p&gt;x</description>"
                        "<enclosure url=\"https://h/f\" c:version=\"3.1\" c:os=\"macos\" "
                        "c:edSignature=\"?\" length=\"many\"/></item>"));
        QVERIFY(feed);
        const UpdateItem item = feed->items.value(0);
        QCOMPARE(item.version, QVersionNumber(3, 1));
        QCOMPARE(item.system, u"macos"_s);
        QCOMPARE(item.signature, QByteArray());
        QCOMPARE(item.length, 0);
        QCOMPARE(item.notesFormat, UpdateItem::NotesFormat::Html);
    }

    void takesOnlyNumbersForVersions()
    {
        QCOMPARE(versionOf(u"1.2.0.0"_s), QVersionNumber(1, 2));
        for (const auto &text : {u"1.2-beta"_s, u""_s, u"v1"_s, u"-1.2"_s, u"1..2"_s, u"1.2."_s,
                                 u"99999999999999"_s, u"1."_s.repeated(60) + u'1'})
            QVERIFY2(versionOf(text).isNull(), qPrintable(text));
    }

    void refusesWhatIsNoFeed_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        const QByteArray good = Maker::feed("");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("no XML") << QByteArray("<!doctype html><p>404<br>");
        QTest::newRow("another document") << QByteArray("<plist/>");
        QTest::newRow("no channel") << QByteArray("<rss/>");
        QTest::newRow("cut short") << good.chopped(12);
        QTest::newRow("something behind it") << good + "<rss/>";
        QTest::newRow("document type") << "<!DOCTYPE rss>" + good;
        QTest::newRow("entities") << "<!DOCTYPE rss [<!ENTITY a \"b\">]>" + good;
        QTest::newRow("too many items")
            << Maker::feed(Maker::withdrawn("1").repeated(UpdateFeed::mostItems + 1));
        QTest::newRow("too long") << good + QByteArray(UpdateFeed::mostBytes, '\n');
        QTest::newRow("broken text") << Maker::feed("<item><title>\xff\xfe</title></item>");
    }
    void refusesWhatIsNoFeed()
    {
        QFETCH(QByteArray, bytes);
        QVERIFY(!UpdateFeed::read(bytes));
    }

    void spendsLittleOnHostileFeeds()
    {
        QByteArray attributes;
        for (int i = 0; i < 20'000; ++i)
            attributes += " a" + QByteArray::number(i) + "=\"\"";
        const QByteArray deep =
            QByteArray("<a>").repeated(35'000) + QByteArray("</a>").repeated(35'000);
        QElapsedTimer timer;
        timer.start();
        for (const QByteArray &items : {deep, "<item" + attributes + "/>"}) {
            const auto feed = UpdateFeed::read(Maker::feed(items));
            QVERIFY(!feed || feed->items.isEmpty());
        }
        QVERIFY2(timer.elapsed() < 30'000, "it works off its input more than once");
    }

    void keepsTextsShort()
    {
        const auto feed = UpdateFeed::read(
            Maker::feed("<item><c:version>1</c:version><c:shortVersionString>"
                        + QByteArray(100'000, 'x') + "</c:shortVersionString><description>"
                        + QByteArray(100'000, 'y') + "</description></item>"));
        QVERIFY(feed);
        QVERIFY(feed->items.first().shortVersion.size() <= 200);
        QVERIFY(feed->items.first().notes.size() <= 16 * 1024);
    }

    void splitsTheSignatureOff()
    {
        const Maker maker;
        const QByteArray feed = Maker::feed("");
        const QByteArray sealed = maker.sealed(feed);
        const SignedFeed split = SignedFeed::split(sealed);
        QCOMPARE(split.feed.toByteArray(), feed);
        QCOMPARE(split.signature, maker.sign(feed));
        for (const QByteArray &unsealed :
             {feed, QByteArray(), QByteArray("<!-- edSignature: AAAA -->"),
              feed.chopped(1) + "<!-- edSignature: AAAA -->", sealed + feed,
              sealed.trimmed().chopped(1)})
            QCOMPARE(SignedFeed::split(unsealed).signature, QByteArray());
        // Only the last one counts, over all that stands before it.
        const QByteArray twice = maker.sealed(sealed);
        QCOMPARE(SignedFeed::split(twice).feed.toByteArray(), sealed);
    }
};

QTEST_GUILESS_MAIN(TestUpdateFeed)
#include "tst_update_feed.moc"
