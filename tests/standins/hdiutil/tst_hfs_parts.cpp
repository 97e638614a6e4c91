// Proves the parts of the HFS Plus writer one by one: a name of its own for every name that a Linux
// folder can hold, the same text where that is possible; trees of every size; files that change
// while they are copied.

#include "Failure.h"
#include "HfsBTree.h"
#include "HfsFormat.h"
#include "HfsNames.h"
#include "HybridImage.h"
#include "ImageFile.h"
#include "ImageTrial.h"
#include "SourceFolder.h"

#include <QTemporaryFile>
#include <QTest>

#include <sys/stat.h>

#include <set>

using namespace Qt::StringLiterals;

class TestHfsParts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names()
    {
        const std::pair<std::string, QString> cases[] = {
            {"a\nb\x01", u"a\nb\u0001"_s}, // newline and control
            {"12:30", u"12/30"_s}, // colon
            {"a\u0301\u0323", u"a\u0323\u0301"_s}, // two marks, reordered
            {"\uD55C", u"\u1112\u1161\u11AB"_s}, // Hangul
            {"\uF900", u"\uF900"_s}, // kept composed: CJK compatibility
            {"\U0001F600\U0001D15E", u"\U0001F600\U0001D15E"_s}, // outside of the basic plane
            {"a\xFF\xC3", u"a%FF%C3"_s}, // not UTF-8
            {"\xED\xA0\x80", u"%ED%A0%80"_s}, // coded surrogate
        };
        for (const auto &[bytes, stored] : cases)
            QCOMPARE(QString::fromStdU16String(hfs::itemNames({bytes}).at(0)), stored);
    }

    void namesStayDifferent()
    {
        std::string longName;
        for (int i = 0; i < 127; ++i)
            longName += "\u0390"; // one of these becomes three units
        std::vector<std::string> raw{"\u00E9",     "e\u0301",   "\xFF",       "%FF",
                                     "\xFF\u00E9", "%FF\u00E9", "%FFe\u0301", "%C3%A9"};
        raw.insert(
            raw.end(),
            {longName, longName + "x", std::string(255, 'a'), std::string(251, '\xFE') + ".txt"});
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

    void volumeNames()
    {
        QCOMPARE(hfs::volumeName(""), u"Untitled");
        QCOMPARE(hfs::volumeName("AC/DC: \u00FC"), u"AC/DC/ u\u0308");
        QCOMPARE(hfs::volumeName(std::string(254, 'v') + "\U0001F600"), std::u16string(254, u'v'));
        QCOMPARE(hybridVolumeName("\x01\x7F\n"), "Untitled");
        QCOMPARE(hybridVolumeName("a\nb\xC2\x85\xFF"), "ab_");
        QCOMPARE(hybridVolumeName(std::string(31, 'v') + "\u00E9"), std::string(31, 'v'));
    }

    void treesOfEverySize()
    {
        // The map in the header is just full with the 2048 nodes of 13720 records.
        for (const auto &[records, mapNodes] :
             {std::pair(0, 0), {13720, 0}, {13721, 1}, {100000, 4}}) {
            QTemporaryFile file;
            QVERIFY(file.open());
            hfs::ImageFile image(file.handle(), "image");
            hfs::BTreeWriter tree(image, {512, 516, 0, 6, 512});
            for (int i = 0; i < records; ++i) {
                const auto name = u"%1"_s.arg(i % 1000, 3, 10, QChar(u'0')).toStdU16String();
                tree.append(hfs::catalogKey(static_cast<std::uint32_t>(i / 1000), name),
                            hfs::Bytes(50));
            }
            const auto size = tree.finish();
            image.flush();
            QCOMPARE(quint64(file.size()), size);
            const auto found = soundHfs({u"--tree"_s, file.fileName()});
            QCOMPARE(found[u"records"].toInt(), records);
            QCOMPARE(found[u"mapNodes"].toInt(), mapNodes);
        }
    }

    void filesThatChange()
    {
        takesWhatIsThere(300'000, 400'000);
        takesWhatIsThere(300'000, 5);
        takesWhatIsThere(9'000'000, 8'000'000); // cut in its hole
    }

    // Whole blocks of files; what a link leads to is not below.
    void countsWhatThereIsToPack()
    {
        const ImageTrial trial;
        trial.makeFile("source/empty", "");
        trial.makeFile("source/a", "x");
        trial.makeFile("source/sub/b", QByteArray(4097, 'y'));
        trial.require(u"ln -s .. source/sub/up && mkfifo source/fifo"_s);
        const std::string path = QFileInfo(trial.image()).path().toStdString() + "/source";
        std::stop_source stop;
        const auto size = [&](int levels) {
            return source::contentSize(source::openRoot(path), path, 4096, stop.get_token(),
                                       levels);
        };
        QCOMPARE(size(2), 3U * 4096);
        QVERIFY_THROWS_EXCEPTION(standin::Failure, size(1));
        stop.request_stop();
        QVERIFY_THROWS_EXCEPTION(standin::Failure, size(2));
    }

private:
    // The sizes when the image gets the status and when it reads the file; a large file has a hole.
    static void takesWhatIsThere(qint64 size, qint64 changedSize)
    {
        QTemporaryFile source;
        QVERIFY(source.open());
        source.write(QByteArray(size > 1'000'000 ? 10 : size, 'x'));
        QVERIFY(source.flush() && source.resize(size));
        struct stat status;
        QCOMPARE(::fstat(source.handle(), &status), 0);
        QVERIFY(source.resize(changedSize));

        QTemporaryFile file;
        QVERIFY(file.open());
        hfs::ImageFile image(file.handle(), "image");
        const auto taken = image.appendFile(source.handle(), status, "source");
        QCOMPARE(image.position(), taken);
        image.align(4096);
        image.append(hfs::Bytes(4096, 'y'));
        image.flush();
        QCOMPARE(qint64(taken), qMin(size, changedSize));
        QVERIFY(source.seek(0) && file.seek(0));
        QVERIFY(file.read(qint64(taken)) == source.read(qint64(taken)));
        QVERIFY(file.readAll().endsWith(QByteArray(4096, 'y')));
    }
};

QTEST_GUILESS_MAIN(TestHfsParts)
#include "tst_hfs_parts.moc"
