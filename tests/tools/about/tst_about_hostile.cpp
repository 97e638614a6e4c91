// Proves that no server can crash or hold up the page, make it write anything but its two caches,
// or take the last good list away.

#include "AboutPageFixture.h"
#include "PngChunks.h"

#include <QTemporaryDir>
#include <QtEndian>

#include <zlib.h>

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

constexpr qsizetype headEnd = 33; // of a PNG file: its signature and its header

QByteArray number(quint32 value)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(value, bytes.data());
    return bytes;
}

QByteArray chunk(const char *type, const QByteArray &data)
{
    const QByteArray checked = type + data;
    const auto sum =
        crc32(0, reinterpret_cast<const Bytef *>(checked.constData()), uInt(checked.size()));
    return number(quint32(data.size())) + checked + number(quint32(sum));
}

QByteArray deflated(const QByteArray &bytes)
{
    return qCompress(bytes).mid(4);
}

/// Chunks that a decoder would unpack to gigabytes, together as large as is accepted.
QByteArray bombs()
{
    const QByteArray zeros = deflated(QByteArray(8'000'000, '\0'));
    const QByteArray each = chunk("zTXt", QByteArray("k\0\0", 3) + zeros)
        + chunk("iTXt", QByteArray("k\0\1\0\0\0", 6) + zeros)
        + chunk("iCCP", QByteArray("p\0\0", 3) + zeros) + chunk("fdAT", zeros)
        + chunk("NEWX", zeros) + chunk("tEXt", QByteArray("k\0text", 6));
    return each.repeated(12);
}

/// A grey picture of 5 x 5 pixels, with this many bytes of unpacked data.
QByteArray greyPicture(int dataSize, bool isInterlaced)
{
    QByteArray header = number(5) + number(5) + QByteArray("\x08\0\0\0\0", 5);
    header.back() = isInterlaced ? 1 : 0;
    return "\x89PNG\r\n\x1a\n" + chunk("IHDR", header)
        + chunk("IDAT", deflated(QByteArray(dataSize, '\0'))) + chunk("IEND", {});
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
        for (const char *name :
             {"../up",      "..",         "/tmp/absolute",  "a\\b",  ".bashrc",
              "DB.sqlite3", "db.SQLITE3", "DB.sqlite3-wal", "-rf",   "photos.zip",
              "a.b.ZIP",    "apps.PLIST", "a\nb",           "a%2fb", "a?b",
              "a#b",        "\xc3\xa9",   "a@2x",           "",      "\xe2\x80\xaegnp"})
            apps += AppsPlist::app(name, "A");
        serve(AppsPlist::list(apps + AppsPlist::app("last", "B")));
        open();
        const int last = rows() - 1;
        QCOMPARE(last, 21);
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

    void takesNothingButThePictureOutOfAFile()
    {
        for (const QImage::Format format :
             {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_Grayscale8,
              QImage::Format_Grayscale16, QImage::Format_RGB32, QImage::Format_ARGB32,
              QImage::Format_RGBA64}) {
            QImage image(13, 7, format);
            image.setColorTable({qRgba(1, 2, 3, 4), qRgba(250, 0, 9, 255)});
            image.fill(1);
            QByteArray png;
            QBuffer buffer(&png);
            image.save(&buffer, "png");
            QVERIFY2(pictureOfPng(png, 13) == png, qPrintable(QString::number(format)));
            QVERIFY(!pictureOfPng(png, 12));
            QCOMPARE(pictureOfPng(QByteArray(png).insert(headEnd, bombs()) + bombs(), 13), png);
            QVERIFY(!pictureOfPng(png.chopped(1), 13));
            QVERIFY(!pictureOfPng(QByteArray(png).replace(headEnd - 1, 1, "x"), 13));
        }
    }

    void believesNoHeader()
    {
        for (const auto &[size, isInterlaced] : {std::pair(30, false), {36, true}}) {
            const QByteArray good = greyPicture(size, isInterlaced);
            QCOMPARE(pictureOfPng(good, 5), good);
            QVERIFY(!QImage::fromData(good).isNull());
            for (const int other : {0, size - 1, size + 1, 100'000'000})
                QVERIFY(!pictureOfPng(greyPicture(other, isInterlaced), 5));
        }
    }

    void keepsThePictureOfABombAlone()
    {
        const QByteArray good = picture(8, 8);
        m_server->set("/conf/images/bomb.png", QByteArray(good).insert(headEnd, bombs()));
        serve(AppsPlist::list(AppsPlist::app("bomb", "A")));
        open();
        QTRY_VERIFY_WITH_TIMEOUT(!icon(0).isNull(), 30'000);
        QCOMPARE(read("bomb"), good);
    }

    // Somebody has put links where the page keeps its files.
    void writesThroughNoLink()
    {
        const QTemporaryDir elsewhere;
        const QString profile = elsewhere.filePath(u"profile"_s);
        const QString keys = elsewhere.filePath(u"authorized_keys"_s);
        Files::write(profile, "the user's own");
        QVERIFY(QFile::link(profile, documents().filePath(u"Apps.plist"_s)));
        QVERIFY(QFile::link(keys, documents().filePath(u"new"_s)));
        const QByteArray list = AppsPlist::list(AppsPlist::app("new", "A"));
        m_server->set("/conf/images/new.png", picture(8, 8));
        serve(list);
        open();
        QTRY_VERIFY_WITH_TIMEOUT(!icon(0).isNull(), 30'000);
        QCOMPARE(Files::read(profile), "the user's own");
        QVERIFY(!QFile::exists(keys));
        QCOMPARE(read("Apps.plist"), list);
        QCOMPARE(read("new"), picture(8, 8));
    }

    void keepsNoHostilePicture()
    {
        serve(AppsPlist::list(AppsPlist::app("bad", "A")));
        for (const Answer &answer :
             {MakersServer::serving("<html>"), MakersServer::serving(hugePicture()),
              MakersServer::serving(picture(8, 1025)),
              MakersServer::serving(greyPicture(100'000'000, false)),
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
