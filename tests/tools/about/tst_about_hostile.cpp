// Proves that no server can crash the page, make it large, make it write beside its two caches or
// take the last good list away.

#include "AboutPage.h"
#include "IconName.h"
#include "Pictures.h"

#include <QtEndian>

using namespace Qt::StringLiterals;

Q_DECLARE_METATYPE(MakersServer::Answer)

namespace
{

/// Kilobytes of memory that this process holds now.
qint64 memory()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("VmRSS:") + 6).trimmed().split(' ').first().toLongLong();
}

QByteArray entityBomb()
{
    QByteArray bomb = "<?xml version=\"1.0\"?><!DOCTYPE plist [<!ENTITY a0 \"aaaaaaaaaa\">";
    for (int i = 1; i < 10; ++i) {
        const QByteArray inner = "&a" + QByteArray::number(i - 1) + ';';
        bomb += "<!ENTITY a" + QByteArray::number(i) + " \"" + inner.repeated(10) + "\">";
    }
    return bomb + "]><plist><dict><key>Apps</key><string>&a9;</string></dict></plist>";
}

/// A binary list of these objects; each reference takes one byte.
QByteArray binary(const QList<QByteArray> &objects)
{
    QByteArray bytes = "bplist00";
    QByteArray offsets;
    for (const QByteArray &object : objects) {
        offsets += static_cast<char>(bytes.size());
        bytes += object;
    }
    QByteArray trailer(32, '\0');
    trailer[6] = 1;
    trailer[7] = 1;
    qToBigEndian(quint64(objects.size()), trailer.data() + 8);
    qToBigEndian(quint64(bytes.size()), trailer.data() + 24);
    return bytes + offsets + trailer;
}

/// An array that holds itself, and arrays that each hold the next one fifteen times.
QByteArray recursive()
{
    return binary({QByteArray("\xd1\x01\x02", 3),
                   QByteArray("\x54"
                              "Apps"),
                   QByteArray("\xa1\x02", 2)});
}

QByteArray multiplying()
{
    QList<QByteArray> objects{QByteArray("\xd1\x01\x02", 3),
                              QByteArray("\x54"
                                         "Apps")};
    for (char next = 3; next < 12; ++next)
        objects += '\xae' + QByteArray(14, next);
    objects += QByteArray("\x50", 1);
    return binary(objects);
}

} // namespace

class TestAboutHostile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(u"Toolvane"_s);
        QCoreApplication::setApplicationName(u"AboutHostileTest"_s);
    }
    void init()
    {
        m_about = std::make_unique<AboutPage>();
        for (const QString &file : AboutPage::files())
            QFile::remove(AboutPage::documents().filePath(file));
    }
    void cleanup() { m_about.reset(); }

    void survivesEveryListAndKeepsTheLastGoodOne_data();
    void survivesEveryListAndKeepsTheLastGoodOne();
    void showsAThousandEntriesAtMost();
    void fetchesNothingForHostileNames_data();
    void fetchesNothingForHostileNames();
    void keepsNoHostilePicture_data();
    void keepsNoHostilePicture();
    void joinsIconAddressesLikePaths();

private:
    std::unique_ptr<AboutPage> m_about;
};

void TestAboutHostile::survivesEveryListAndKeepsTheLastGoodOne_data()
{
    QTest::addColumn<MakersServer::Answer>("answer");
    const auto row = [](const char *name, const MakersServer::Answer &answer) {
        QTest::newRow(name) << answer;
    };
    const auto body = [](const QByteArray &bytes) {
        return MakersServer::raw(HttpPeer::reply(bytes));
    };
    row("404", MakersServer::status("404 Not Found"));
    row("500", MakersServer::status("500 Oh"));
    row("drops", MakersServer::dropping(AppsPlist::list("")));
    row("endless", MakersServer::endless(QByteArray(60'000, ' ')));
    row("redirects to a file", MakersServer::redirect("file:///etc/passwd"));
    row("redirects to itself", MakersServer::redirect("/conf/Apps.plist"));
    row("empty", body({}));
    row("no list", body("<html><body>Sign in to the network</body></html>"));
    row("no dictionary", body("<plist><string>a</string></plist>"));
    row("huge", body(AppsPlist::list(AppsPlist::app("", "A", "").repeated(3000))));
    row("deep",
        body("<plist>" + QByteArray("<array>").repeated(30'000)
             + QByteArray("</array>").repeated(3000)));
    row("deep and whole",
        body("<plist><dict><key>Apps</key>" + QByteArray("<array>").repeated(10'000)
             + QByteArray("</array>").repeated(10'000) + "</dict></plist>"));
    row("entity bomb", body(entityBomb()));
    row("recursive", body(recursive()));
    row("multiplying", body(multiplying()));
    row("binary, cut", body(recursive().chopped(5)));
}

void TestAboutHostile::survivesEveryListAndKeepsTheLastGoodOne()
{
    QFETCH(MakersServer::Answer, answer);
    const QByteArray good = AppsPlist::list(AppsPlist::app("zip", "Good", "https://h/"));
    AboutPage::write(u"Apps.plist"_s, good);
    m_about->server.set("/conf/Apps.plist", answer);
    const qint64 before = memory();
    m_about->open();
    QVERIFY2(memory() - before < 100 * 1024, "too much memory");
    QCOMPARE(m_about->table().model()->rowCount(), 1);
    QCOMPARE(m_about->text(0, AppsTable::NameColumn), u"Good"_s);
    QCOMPARE(AboutPage::read(u"Apps.plist"_s), good);
    QCOMPARE(AboutPage::files(), QStringList{u"Apps.plist"_s});
}

void TestAboutHostile::showsAThousandEntriesAtMost()
{
    QByteArray many;
    for (int i = 0; i < 1500; ++i)
        many += "<dict>" + AppsPlist::string("Name", QByteArray::number(i)) + "</dict>";
    m_about->server.set("/conf/Apps.plist", AppsPlist::list(many));
    m_about->open();
    QCOMPARE(m_about->table().model()->rowCount(), 1000);
    m_about->server.set(
        "/conf/Apps.plist",
        "<plist><dict><key>Apps</key><dict/><key>Social</key><array/></dict></plist>");
    m_about->open();
    QCOMPARE(m_about->table().model()->rowCount(), 0);
}

void TestAboutHostile::fetchesNothingForHostileNames_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"../up",
                             "..",
                             ".",
                             "/tmp/absolute",
                             "a/b",
                             "a\\b",
                             ".bashrc",
                             "DB.sqlite3",
                             "db.SQLITE3",
                             "DB.sqlite3-journal",
                             "DB.sqlite3-wal",
                             "Apps.plist",
                             "apps.PLIST",
                             "a b",
                             "a\nb",
                             "a%2fb",
                             "a?b",
                             "a#b",
                             "\xc3\xa9",
                             "a@2x",
                             "",
                             "\xe2\x80\xae"
                             "gnp"})
        QTest::newRow(*name ? name : "empty") << QByteArray(name);
    QTest::newRow("long") << QByteArray(300, 'n');
}

void TestAboutHostile::fetchesNothingForHostileNames()
{
    QFETCH(QByteArray, name);
    AboutPage::write(u"DB.sqlite3"_s, "records");
    m_about->server.set("/conf/images/last.png", Pictures::png(8, 8));
    m_about->server.set(
        "/conf/Apps.plist",
        AppsPlist::list(AppsPlist::app(name, "A", "") + AppsPlist::app("last", "B", "")));
    m_about->open();
    QVERIFY(m_about->icon(0).isNull());
    QTRY_VERIFY(!m_about->icon(1).isNull()); // what was asked for has been asked for by now
    m_about->awaitRequest("/conf/images/last@2x.png");
    QCOMPARE(m_about->server.paths(),
             (QList<QByteArray>{"/conf/Apps.plist", "/conf/images/last.png",
                                "/conf/images/last@2x.png"}));
    QCOMPARE(AboutPage::files(), (QStringList{u"Apps.plist"_s, u"DB.sqlite3"_s, u"last"_s}));
    QCOMPARE(AboutPage::read(u"DB.sqlite3"_s), "records");
}

void TestAboutHostile::keepsNoHostilePicture_data()
{
    QTest::addColumn<MakersServer::Answer>("answer");
    const auto row = [](const char *name, const MakersServer::Answer &answer) {
        QTest::newRow(name) << answer;
    };
    const auto body = [](const QByteArray &bytes) {
        return MakersServer::raw(HttpPeer::reply(bytes));
    };
    row("no picture", body("<html>"));
    row("30,000 x 30,000", body(Pictures::pngClaiming(30'000, 30'000)));
    row("too wide", body(Pictures::png(1025, 8)));
    row("too high", body(Pictures::png(8, 1025)));
    row("another format", body(Pictures::png(8, 8, Qt::red, "bmp")));
    row("cut short", body(Pictures::png(800, 800).first(60)));
    row("too long", body(Pictures::png(8, 8) + QByteArray(600 * 1024, ' ')));
    row("drawing", body("<svg xmlns='http://www.w3.org/2000/svg'/>"));
    row("404", MakersServer::status("404 Not Found"));
    row("drops", MakersServer::dropping(Pictures::png(8, 8)));
    row("endless", MakersServer::endless(Pictures::png(800, 800)));
    row("redirects to a file", MakersServer::redirect("file:///etc/hostname"));
}

void TestAboutHostile::keepsNoHostilePicture()
{
    QFETCH(MakersServer::Answer, answer);
    m_about->server.set("/conf/Apps.plist", AppsPlist::list(AppsPlist::app("bad", "A", "")));
    m_about->server.set("/conf/images/bad.png", answer);
    m_about->server.set("/conf/images/bad@2x.png", answer);
    const qint64 before = memory();
    m_about->open();
    m_about->awaitRequest("/conf/images/bad@2x.png");
    m_about->page.reset(); // waits for the fetch
    QVERIFY2(memory() - before < 100 * 1024, "too much memory");
    QCOMPARE(AboutPage::files(), QStringList{u"Apps.plist"_s});
    // The same picture as a file in the folder is not shown either.
    AboutPage::write(u"bad"_s, Pictures::pngClaiming(30'000, 30'000));
    m_about->open();
    QTest::qWait(30);
    QVERIFY(m_about->icon(0).isNull());
}

void TestAboutHostile::joinsIconAddressesLikePaths()
{
    QCOMPARE(iconAddress(u"https://h//conf/"_s, u"a"_s), "https:/h/conf/images/a.png");
}

QTEST_MAIN(TestAboutHostile)
#include "tst_about_hostile.moc"
