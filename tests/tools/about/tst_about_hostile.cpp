// Proves that no server can crash or hold up the page, make it write anything but its two caches,
// or take the last good list away.

#include "AboutPageFixture.h"

using namespace Qt::StringLiterals;
using Answer = MakersServer::Answer;

namespace
{

/// A small file whose header claims another size: what counts is refused before it is unpacked.
QByteArray hugePicture()
{
    return picture(8, 8).replace(12, 21, // the header's name, 30,000 x 30,000 and the checksum
                                 QByteArray::fromHex("4948445200007530000075300802000000e9456fed"));
}

} // namespace

class TestAboutHostile : public AboutPageFixture
{
    Q_OBJECT

private Q_SLOTS:
    // What hostile lists do to the reader itself, tst_propertylist proves.
    void keepsTheLastGoodList()
    {
        const QByteArray good = AppsPlist::list(AppsPlist::app("zip", "Good"));
        write("Apps.plist", good);
        const QByteArray deep =
            QByteArray("<array>").repeated(10'000) + QByteArray("</array>").repeated(10'000);
        for (const Answer &answer :
             {MakersServer::dropping(AppsPlist::list("")),
              MakersServer::endless(QByteArray(60'000, ' ')),
              MakersServer::redirect("file:///etc/passwd"), MakersServer::serving({}),
              MakersServer::serving("<html><body>Sign in to the network</body></html>"),
              MakersServer::serving(AppsPlist::list(AppsPlist::app("", "A").repeated(3000))),
              MakersServer::serving(AppsPlist::list(deep)),
              MakersServer::serving(
                  "<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><dict><key>Apps</key>"
                  "<string>&a;</string></dict></plist>")}) {
            m_server->set("/conf/Apps.plist", answer);
            open();
            QCOMPARE(rows(), 1);
            QCOMPARE(text(0, AppsTable::NameColumn), u"Good"_s);
            QCOMPARE(read("Apps.plist"), good);
            QCOMPARE(files(), QStringList{u"Apps.plist"_s});
        }
    }

    void showsAThousandEntriesAtMost()
    {
        serve(AppsPlist::list(
            QByteArray("<dict><key>Name</key><string>A</string></dict>").repeated(1500)));
        open();
        QCOMPARE(rows(), 1000);
        serve("<plist><dict><key>Apps</key><dict/><key>Social</key><array/></dict></plist>");
        open();
        QCOMPARE(rows(), 0);
    }

    void fetchesNothingForHostileNames()
    {
        write("DB.sqlite3", "records");
        m_server->set("/conf/images/last.png", picture(8, 8));
        QByteArray apps = AppsPlist::app(QByteArray(300, 'n'), "A");
        for (const char *name : {"../up", "..", "/tmp/absolute", "a\\b", ".bashrc", "DB.sqlite3",
                                 "db.SQLITE3", "DB.sqlite3-wal", "apps.PLIST", "a\nb", "a%2fb",
                                 "a?b", "a#b", "\xc3\xa9", "a@2x", "", "\xe2\x80\xaegnp"})
            apps += AppsPlist::app(name, "A");
        serve(AppsPlist::list(apps + AppsPlist::app("last", "B")));
        open();
        const int last = rows() - 1;
        QCOMPARE(last, 18);
        for (int row = 0; row < last; ++row)
            QVERIFY2(icon(row).isNull(), QByteArray::number(row).constData());
        QTRY_VERIFY(!icon(last).isNull()); // whatever was requested, was requested by now
        awaitRequest("/conf/images/last@2x.png");
        QCOMPARE(m_server->paths(),
                 (QList<QByteArray>{"/conf/Apps.plist", "/conf/images/last.png",
                                    "/conf/images/last@2x.png"}));
        QCOMPARE(files(), (QStringList{u"Apps.plist"_s, u"DB.sqlite3"_s, u"last"_s}));
        QCOMPARE(read("DB.sqlite3"), "records");
    }

    void keepsNoHostilePicture()
    {
        serve(AppsPlist::list(AppsPlist::app("bad", "A")));
        for (const Answer &answer :
             {MakersServer::serving("<html>"), MakersServer::serving(hugePicture()),
              MakersServer::serving(picture(8, 1025)),
              MakersServer::serving(picture(8, 8, Qt::red, "bmp")),
              MakersServer::serving(picture(8, 8) + QByteArray(600 * 1024, ' ')),
              MakersServer::endless(picture(800, 800)),
              MakersServer::redirect("file:///etc/hostname")}) {
            m_server->set("/conf/images/bad.png", answer);
            m_server->set("/conf/images/bad@2x.png", answer);
            const qsizetype before = m_server->paths().size();
            open();
            QTRY_COMPARE_WITH_TIMEOUT(m_server->paths().size(), before + 3, 30'000);
            m_page.reset(); // waits for the fetch
            QCOMPARE(files(), QStringList{u"Apps.plist"_s});
        }
        // The same picture as a file in the folder is not shown either.
        write("bad", hugePicture());
        const qsizetype before = m_server->paths().size();
        open();
        // By the time the larger one is requested, the page has been given what the file holds.
        QTRY_COMPARE_WITH_TIMEOUT(m_server->paths().size(), before + 2, 30'000);
        QCoreApplication::processEvents();
        QVERIFY(icon(0).isNull());
    }
};

QTEST_MAIN(TestAboutHostile)
#include "tst_about_hostile.moc"
