// Proves that property lists of both forms are read whole and that hostile ones are refused within
// the limits.

#include "PropertyList.h"

#include <QDateTime>
#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace
{

QByteArray xml(const QByteArray &value)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">"
        + value + "</plist>\n";
}

/// A list of the binary form: object 0 is the top, offsets and references are one byte wide.
QByteArray binary(const QList<QByteArray> &objects)
{
    QByteArray bytes = "bplist00";
    QByteArray offsets;
    for (const QByteArray &object : objects) {
        offsets.append(char(bytes.size()));
        bytes.append(object);
    }
    const auto tableOffset = qToBigEndian(quint64(bytes.size()));
    const auto count = qToBigEndian(quint64(objects.size()));
    bytes.append(offsets).append(QByteArray(6, '\0')).append("\x01\x01", 2);
    bytes.append(reinterpret_cast<const char *>(&count), 8).append(QByteArray(8, '\0'));
    return bytes.append(reinterpret_cast<const char *>(&tableOffset), 8);
}

const QVariantList everyKind{u"abc"_s,
                             QString(),
                             u"\u00e9\u20ac"_s,
                             QString(20, u'x'),
                             qint64(-1),
                             qint64(255),
                             std::numeric_limits<quint64>::max(),
                             -2.5,
                             -2.5,
                             true,
                             QDateTime({2024, 3, 7}, {9, 5, 3}, Qt::UTC),
                             QByteArray("\0\xff", 2),
                             QVariantList{true, -2.5},
                             QVariantMap{{u"abc"_s, QString()}}};

const QByteArray everyKindInXml =
    xml("<array><string>abc</string><string/><string>&#233;\xe2\x82\xac</string>"
        "<string>xxxxxxxxxxxxxxxxxxxx</string><integer> -1 </integer><integer>0xFF</integer>"
        "<integer>18446744073709551615</integer><real>-2.5</real><real>-25e-1</real><true/>"
        "<date>2024-03-07T09:05:03Z</date><data>\n\tAP\n\t8=\n</data>"
        "<array><true/><!-- x --><real>-2.5</real></array>"
        "<dict><key>abc</key><string/></dict></array>");

const QByteArray everyKindInBinary =
    binary({"\xae\x01\x02\x03\x04\x05\x06\x07\x08\x09\x0a\x0b\x0c\x0d\x0e",
            "\x53"
            "abc",
            "\x50", QByteArray("\x62\x00\xe9\x20\xac", 5), "\x5f\x10\x14" + QByteArray(20, 'x'),
            "\x13" + QByteArray(8, '\xff'), "\x10\xff",
            "\x14" + QByteArray(8, '\0') + QByteArray(8, '\xff'),
            QByteArray("\x23\xc0\x04\0\0\0\0\0\0", 9), QByteArray("\x22\xc0\x20\x00\x00", 5),
            "\x09", QByteArray("\x33\x41\xc5\xcc\xdd\x5f\x80\x00\x00", 9),
            QByteArray("\x42\x00\xff", 3), "\xa2\x0a\x08", "\xd1\x01\x02"});

} // namespace

class TestPropertyList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readsEveryKind()
    {
        for (const QByteArray &bytes : {everyKindInXml, everyKindInBinary}) {
            const QVariantList read = PropertyList::read(bytes).value_or(QVariant()).toList();
            QCOMPARE(read.size(), everyKind.size());
            for (qsizetype i = 0; i < read.size(); ++i) {
                QCOMPARE(read.at(i).metaType(), everyKind.at(i).metaType());
                QCOMPARE(read.at(i), everyKind.at(i));
            }
        }
    }

    void refusesHostileLists()
    {
        QList<QByteArray> doubling; // 2^30 values in a few hundred bytes
        for (int i = 1; i <= 30; ++i)
            doubling.append("\xa2" + QByteArray(2, char(i)));
        const std::pair<const char *, QByteArray> cases[] = {
            {"another document", "<html><body/></html>"},
            {"unfinished", xml("<array><true/>").chopped(9)},
            {"more behind", xml("<true/>") + "<plist/>"},
            {"value without key", xml("<dict><true/></dict>")},
            {"element in a string", xml("<string>a<true/></string>")},
            {"no number", xml("<integer>7a</integer>")},
            {"no date", xml("<date>yesterday</date>")},
            {"no base64", xml("<data>A!</data>")},
            {"entity from a file",
             "<!DOCTYPE plist [<!ENTITY a SYSTEM \"file:///etc/passwd\">]>"
             "<plist><string>&a;</string></plist>"},
            {"depth",
             xml(QByteArray("<array>").repeated(33) + QByteArray("</array>").repeated(33))},
            {"objects", xml("<array>" + QByteArray("<true/>").repeated(100'000) + "</array>")},
            {"length", xml("<string>" + QByteArray(1024 * 1024, 'x') + "</string>")},
            {"binary cycle", binary({QByteArray("\xa1\x00", 2)})},
            {"binary number of another object", binary({"\xa1\x05"})},
            {"binary past the end", binary({"\x5f\x12\x7f\xff\xff\xff"})},
            {"binary count past 64 bits", binary({"\xaf\x13" + QByteArray(8, '\xff')})},
            {"binary key that is no text", binary({"\xd1\x01\x01", QByteArray("\x10\x07")})},
            {"binary date past the calendar", binary({"\x33\x7f" + QByteArray(7, '\xf0')})},
            {"binary widths of 0", binary({"\x09"}).replace("\x01\x01", QByteArray(2, '\0'))},
            {"binary table past the end",
             binary({"\x09"}).replace(QByteArray(7, '\0') + "\x09", QByteArray(8, '\xff'))},
            {"binary doubling", binary(doubling << "\x09")},
            {"binary long text named often",
             binary({"\xaf\x10\x64" + QByteArray(100, '\1'),
                     "\x5f\x12" + QByteArray("\0\1\0\0", 4) + QByteArray(65536, 'x')})},
        };
        for (const auto &[name, bytes] : cases)
            QVERIFY2(!PropertyList::read(bytes), name);
    }

    void survivesEveryCutAndEveryChangedByte()
    {
        for (qsizetype i = 0; i < everyKindInBinary.size(); ++i) {
            QVERIFY(!PropertyList::read(everyKindInBinary.first(i)));
            for (const char byte : {'\x00', '\x7f', '\xff'}) {
                QByteArray changed = everyKindInBinary;
                changed[i] = byte;
                PropertyList::read(changed);
            }
        }
    }
};

QTEST_GUILESS_MAIN(TestPropertyList)
#include "tst_propertylist.moc"
