// Proves that every name a Linux folder can hold gets a name of its own that HFS Plus accepts, the
// same text wherever that is possible.

#include "HfsNames.h"

#include <QTest>

#include <set>

using namespace Qt::StringLiterals;

class HfsNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_data();
    void names();
    void namesStayDifferent();
    void volumeNames();
    void whichNamesNeedTheTable();
};

void HfsNamesTest::names_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("stored");

    const auto row = [](const char *what, QByteArray bytes, const QString &stored) {
        QTest::newRow(what) << bytes << stored;
    };
    row("plain", "a file.txt", u"a file.txt"_s);
    row("newline and control", "a\nb\x01", u"a\nb\u0001"_s);
    row("colon", "12:30", u"12/30"_s);
    row("percent", "100%41", u"100%41"_s);
    row("composed", "\u00C4rger", u"A\u0308rger"_s);
    row("two marks, reordered", "a\u0301\u0323", u"a\u0323\u0301"_s);
    row("Hangul", "\uD55C", u"\u1112\u1161\u11AB"_s);
    row("Turkish i and sharp s", "\u0130\u0131\u00DF", u"I\u0307\u0131\u00DF"_s);
    row("kept composed: Kelvin sign", "\u212A", u"\u212A"_s);
    row("kept composed: CJK compatibility", "\uF900", u"\uF900"_s);
    row("newer than Unicode 3.2", "\u1B06", u"\u1B06"_s);
    row("outside of the basic plane", "\U0001F600\U0001D15E", u"\U0001F600\U0001D15E"_s);
    row("not UTF-8", "a\xFF\xC3", u"a%FF%C3"_s);
    row("coded surrogate", "\xED\xA0\x80", u"%ED%A0%80"_s);
    row("overlong", "\xC0\xAF", u"%C0%AF"_s);
}

void HfsNamesTest::names()
{
    QFETCH(QByteArray, bytes);
    const auto names = hfs::itemNames({bytes.toStdString()});
    QTEST(QString::fromStdU16String(names.at(0)), "stored");
}

void HfsNamesTest::namesStayDifferent()
{
    std::string longName;
    for (int i = 0; i < 127; ++i)
        longName += "\u0390"; // one of these becomes three units
    const std::vector<std::string> raw{"\u00E9",
                                       "e\u0301",
                                       "\xFF",
                                       "%FF",
                                       "\xFF\u00E9",
                                       "%FF\u00E9",
                                       "%FFe\u0301",
                                       "%C3%A9",
                                       longName,
                                       longName + "x",
                                       std::string(255, 'a'),
                                       std::string(251, '\xFE') + ".txt"};
    const auto names = hfs::itemNames(raw);
    QCOMPARE(std::set<std::u16string>(names.begin(), names.end()).size(), raw.size());
    for (const auto &name : names)
        QVERIFY(!name.empty() && name.size() <= 255);
    QCOMPARE(names[1], u"e\u0301");
    QCOMPARE(names[3], u"%FF");
    QCOMPARE(names[7], u"%C3%A9");
    QCOMPARE(names[10], std::u16string(255, u'a'));
    QVERIFY(names[11].ends_with(u".txt"));
    QCOMPARE(hfs::itemNames(raw), names);
}

void HfsNamesTest::volumeNames()
{
    QCOMPARE(hfs::volumeName(""), u"Untitled");
    QCOMPARE(hfs::volumeName("AC/DC: \u00FC"), u"AC/DC/ u\u0308");
    QCOMPARE(hfs::volumeName(std::string(300, 'v')), std::u16string(255, u'v'));
    QCOMPARE(hfs::volumeName(std::string(254, 'v') + "\U0001F600"), std::u16string(254, u'v'));
}

void HfsNamesTest::whichNamesNeedTheTable()
{
    for (const auto *name : {u"\u00C6", u"\u0416", u"\u10A0", u"a\u200Db", u"\uFEFF", u"\u212A"})
        QVERIFY(hfs::needsFoldTable(name));
    for (const auto *name : {u"ABC", u"A\u0308", u"\u00DF", u"\u0131", u"\U0001F600", u"\u0436"})
        QVERIFY(!hfs::needsFoldTable(name));
    QVERIFY(hfs::compareFolded(u"README", u"readme") == 0);
    QVERIFY(hfs::compareFolded(u"_", u"A") < 0);
    QVERIFY(hfs::compareFolded(u"ab", u"A") > 0);
}

QTEST_APPLESS_MAIN(HfsNamesTest)
#include "HfsNamesTest.moc"
