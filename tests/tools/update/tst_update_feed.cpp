// Proves that a feed of any origin is read for what it says or refused, and that of its versions
// none is offered that should not be.

#include "Maker.h"
#include "NotesText.h"
#include "UpdateFeed.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

const UpdateRules rules{.installed = {1, 2},
                        .system = {6, 1},
                        .systemName = u"linux"_s,
                        .channel = u"beta"_s,
                        .withdrawn = {{1, 3}}};

} // namespace

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
            maker.item("1.20.0", "https://h/f", "file", more) + Maker::withdrawn("1.10")
                + "<item><enclosure url=\"https://h/f\" c:version=\"3.1\" c:os=\"macos\" "
                  "c:edSignature=\"?\" length=\"many\"/></item>",
            "Mon, 02 Mar 2026 12:00:00 +0200"));
        QVERIFY(feed);
        QCOMPARE(feed->date, QDateTime(QDate(2026, 3, 2), QTime(10, 0), Qt::UTC));
        QCOMPARE(feed->expiry, QDateTime(QDate(2099, 3, 2), QTime(10, 0), Qt::UTC));
        const UpdateItem &item = feed->items.first();
        QCOMPARE(item.shortVersion, u"2 <b>"_s);
        QCOMPARE(item.minimumSystem, QVersionNumber(5, 10));
        QCOMPARE(item.channel, u"beta"_s);
        QCOMPARE(item.notes, u"a & b"_s);
        QCOMPARE(item.address, "https://h/f");
        QVERIFY(!item.withdrawn && feed->items.at(1).withdrawn);
        const UpdateItem &onEnclosure = feed->items.at(2);
        QCOMPARE(onEnclosure.version, QVersionNumber(3, 1));
        QCOMPARE(onEnclosure.system, u"macos"_s);
        QCOMPARE(onEnclosure.signature, QByteArray());
        QCOMPARE(onEnclosure.length, 0);
    }

    void takesTheTextOutOfNotes_data()
    {
        QTest::addColumn<QString>("html");
        QTest::addColumn<QString>("text");
        QTest::newRow("blocks") << u"<h2>New</h2>\n<p>one\n <b>two</b>,\tthree<br>four</p>"_s
                                << u"New\none two, three\nfour"_s;
        QTest::newRow("list") << u"<UL class='x'><LI>a<LI>b</UL>c"_s << u"• a\n• b\nc"_s;
        QTest::newRow("entities") << u"&lt;b&gt; &amp;amp; &#8364;&#x20ac;&nbsp;&quot;&apos;"_s
                                  << u"<b> &amp; €€ \"'"_s;
        QTest::newRow("no entities") << u"a & b &; &none; &#0; &#xd800; &#1114112; &lt"_s
                                     << u"a & b &; &none; &#0; &#xd800; &#1114112; &lt"_s;
        QTest::newRow("left out") << u"a<script>if (a<b) x()</script >b<!-- <p>c -->d"_s
                                  << u"abd"_s;
        for (const auto &open : {u"<"_s, u"<p"_s, u"<!--"_s, u"<script>"_s, u"<style a='"_s})
            QTest::newRow(qPrintable(u"never closed: "_s + open))
                << u"a"_s + open + u" b"_s << u"a"_s;
    }
    void takesTheTextOutOfNotes()
    {
        QFETCH(const QString, html);
        QTEST(plainTextOfNotes(html), "text");
    }

    void readsOnlyNumbersAsVersions()
    {
        QCOMPARE(versionOf(u"1.2.0.0"_s), QVersionNumber(1, 2));
        for (const auto &text : {u"1.2-beta"_s, u""_s, u"v1"_s, u"-1.2"_s, u"1..2"_s, u"1.2."_s,
                                 u"99999999999999"_s, u"1."_s.repeated(60) + u'1'})
            QVERIFY2(versionOf(text).isNull(), qPrintable(text));
    }

    void refusesWhatIsNoFeed()
    {
        const QByteArray good = Maker::feed("");
        QVERIFY(UpdateFeed::read(good));
        for (const QByteArray &bytes :
             {QByteArray(), QByteArray("<!doctype html><p>404<br>"), QByteArray("<plist/>"),
              QByteArray("<rss/>"), good.chopped(12), good + "<rss/>",
              "<!DOCTYPE rss [<!ENTITY a \"b\">]>" + good,
              Maker::feed(Maker::withdrawn("1").repeated(UpdateFeed::maxItems + 1)),
              good + QByteArray(UpdateFeed::maxBytes, '\n'),
              Maker::feed("<item><title>\xff\xfe</title></item>")})
            QVERIFY2(!UpdateFeed::read(bytes), bytes.left(80).constData());
    }

    void survivesHostileFeeds()
    {
        QByteArray attributes;
        for (int i = 0; i < 20'000; ++i)
            attributes += " a" + QByteArray::number(i) + "=\"\"";
        const QByteArray deep =
            QByteArray("<a>").repeated(35'000) + QByteArray("</a>").repeated(35'000);
        const QByteArray text(100'000, 'x');
        const auto longTexts = UpdateFeed::read(
            Maker::feed("<item><c:version>1</c:version><c:shortVersionString>" + text
                        + "</c:shortVersionString><description>" + text + "</description></item>"));
        QVERIFY(longTexts && longTexts->items.first().shortVersion.size() <= 200);
        QVERIFY(longTexts->items.first().notes.size() <= 16 * 1024);
        // A layout of these would take half a minute.
        const auto cells = UpdateFeed::read(
            Maker::feed("<item><c:version>1</c:version><description><![CDATA["
                        + QByteArray("<table><td>x").repeated(1300) + "]]></description></item>"));
        QVERIFY(cells);
        QCOMPARE(cells->items.first().notes, QStringList(1300, u"x"_s).join(u'\n'));
        for (const QByteArray &items : {deep, "<item" + attributes + "/>"}) {
            const auto feed = UpdateFeed::read(Maker::feed(items));
            QVERIFY(!feed || feed->items.isEmpty());
        }
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
        // Only the last one counts, over everything before it.
        const QByteArray twice = maker.sealed(sealed);
        QCOMPARE(SignedFeed::split(twice).feed.toByteArray(), sealed);
    }

    void judgesEachVersion()
    {
        const UpdateItem good{.version = {1, 4},
                              .shortVersion = u"1.4"_s,
                              .address = "https://h/f",
                              .length = 10,
                              .signature = QByteArray(64, 's')};
        using Change = void (*)(UpdateItem &);
        for (const auto &[name, isOffered, change] :
             std::initializer_list<std::tuple<const char *, bool, Change>>{
                 {"good", true, [](UpdateItem &) {}},
                 {"the installed one", false,
                  [](UpdateItem &i) {
                      i.version = {1, 2};
                  }},
                 {"withdrawn", false, [](UpdateItem &i) { i.withdrawn = true; }},
                 {"this system", true, [](UpdateItem &i) { i.system = u"linux"_s; }},
                 {"another system", false, [](UpdateItem &i) { i.system = u"macos"_s; }},
                 {"this version", true, [](UpdateItem &i) { i.minimumSystem = {6, 1}; }},
                 {"a newer version", false, [](UpdateItem &i) { i.minimumSystem = {6, 2}; }},
                 {"this channel", true, [](UpdateItem &i) { i.channel = u"beta"_s; }},
                 {"another channel", false, [](UpdateItem &i) { i.channel = u"alpha"_s; }},
                 {"taken back earlier", false, [](UpdateItem &i) { i.version = {1, 3}; }},
                 {"signed by half", false, [](UpdateItem &i) { i.signature.chop(1); }},
                 {"no length", false, [](UpdateItem &i) { i.length = 0; }},
                 {"plain http", false, [](UpdateItem &i) { i.address = "http://h/f"; }}}) {
            UpdateItem item = good;
            change(item);
            QVERIFY2(chooseOffer({.items = {item}}, rules).has_value() == isOffered, name);
        }
        UpdateItem newer = good;
        newer.version = {1, 10};
        const auto offer = chooseOffer({.items = {good, newer}}, rules);
        QVERIFY(offer && offer->version == QVersionNumber(1, 10));
        UpdateItem takenBack = newer;
        takenBack.withdrawn = true;
        QVERIFY(!chooseOffer({.items = {newer, takenBack}}, rules));
    }

    void knowsSafeAddresses()
    {
        for (const char *address :
             {"HTTPS://h/f", "http://127.0.0.1/f", "http://127.0.0.1:8080/f", "http://[::1]:80/f"})
            QVERIFY2(isSafeAddress(address), address);
        for (const char *address :
             {"", "http://h/f", "https://", "file:///etc/passwd", "/f",
              "http://127.0.0.1.elsewhere/f", "http://127.0.0.1@elsewhere/f",
              "http://127.0.0.1:80@elsewhere/f", "http://127.0.0.1\\@elsewhere/f",
              "http://[::1]elsewhere/f", " https://h/f", "http://localhost/f"})
            QVERIFY2(!isSafeAddress(address), address);
    }
};

QTEST_GUILESS_MAIN(TestUpdateFeed)
#include "tst_update_feed.moc"
