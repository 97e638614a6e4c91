// Proves that images of both formats hold the whole folder, whatever is in it, by programs that had
// no part in making them, that the HFS Plus ones are sound by a second reading of the format, and
// that a failure leaves the older image.

#include "ImageTrial.h"

#include <QTest>
#include <QtEndian>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

// Unpacks the image into a folder of that name, which is made anew.
const auto sevenZip = u"rm -rf out && mkdir out && cd out && 7z x -y -bd ../image"_s;
const auto rockRidge = u"rm -rf out && mkdir out && bsdtar -xf image -C out"_s;
// What is in all files of two folders, for readers that give them other names.
const auto haveTheSameContents = u"for i in out source; do find $i -type f -exec sha256sum {} + |"
                                 " sed 's/^\\\\//' | cut -c1-64 | sort > $i.sums; done;"
                                 " cmp out.sums source.sums"_s;

QJsonObject itemsOf(const ImageTrial &trial)
{
    return soundHfs({trial.image()})[u"items"].toObject();
}

} // namespace

class TestImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hfsHoldsTheWholeFolder()
    {
        const ImageTrial trial;
        trial.makeFile("source/empty", "");
        trial.makeFile("source/one block", QByteArray(4096, 'x'));
        trial.makeFile("source/sub/more", QByteArray(300'001, 'y'));
        trial.makeFile("source/sub/line\nbreak", "z");
        trial.require(u"cd source && mkdir 'empty folder' && ln 'one block' 'sub/hard link'"_s);
        trial.require(
            u"cd source && ln -s sub/more link && ln -s \"$(printf 'no\\377')\" dangling"_s);
        const auto end = trial.makeImage(true, u"Grün/Blau"_s);
        QCOMPARE(end.errors, QByteArray());
        QCOMPARE(end.status, 0);
        const auto found = soundHfs({trial.image()});
        QCOMPARE(found[u"volumeName"].toString(), u"Gru\u0308n/Blau"_s);
        for (const auto &link : {u"link"_s, u"dangling"_s})
            QVERIFY(found[u"items"][link][u"isLink"].toBool());
        trial.require(sevenZip);
        trial.require(u"diff -r --no-dereference source out/Gru\u0308n_Blau"_s);

        const auto before = contentOf(trial.image());
        QCOMPARE(trial.makeImage(true, u"Grün/Blau"_s).status, 0);
        QVERIFY(contentOf(trial.image()) == before);
    }

    void hybridHoldsTheWholeFolder()
    {
        const ImageTrial trial;
        const QByteArray names = "a=b|*|--|-rf|line\nbreak|\xFF|ab:c|back\\slash|\u00E9|\U0001F600|"
                                 "README|readme|sub/empty|"
            + QByteArray(200, 'n');
        for (const auto &name : names.split('|'))
            trial.makeFile("source/" + name, name);
        trial.require(u"cd source && mkdir 'empty folder' && ln -s ../README sub/link"_s);
        const auto end = trial.makeImage(false, u"Grün"_s);
        QCOMPARE(end.errors, QByteArray());
        QCOMPARE(end.status, 0);
        trial.require(rockRidge);
        trial.require(u"diff -r --no-dereference source out"_s);
        trial.require(sevenZip); // reads Joliet
        trial.require(haveTheSameContents);

        const auto info = runProgram(u"isoinfo"_s, {u"-d"_s, u"-i"_s, trial.image()}).output;
        QVERIFY2(info.contains("Volume id: Gr\u00FCn") && info.contains("Joliet with UCS level 3")
                     && info.contains("Rock Ridge signatures version 1"),
                 info.constData());
        // The partition map of 512-byte blocks leads to a volume header of HFS Plus.
        const auto image = contentOf(trial.image());
        const auto type = image.indexOf("Apple_HFS");
        QVERIFY(type > 0 && type % 512 == 48 && image.mid(type - 48, 2) == "PM");
        const auto start = qFromBigEndian<quint32>(image.constData() + type - 40);
        QCOMPARE(image.mid(qsizetype{start} * 512 + 1024, 2), QByteArray("H+"));
    }

    void oddNamesKeepTheirContent()
    {
        const ImageTrial trial;
        const QByteArray text =
            "a:b|100%|\xFF\xFE|%FF%FE|\u00E9|e\u0301|\uD55C\uAE00|\u0130|\u0131|"
            "stra\u00DFe|STRASSE|\U0001F600|zero\u200Dwidth|zerowidth|\uFEFF|"
            "README|readme| |tab\tend|-rf|\\|~|.hidden|\u03A3|\u03C3|\u03C2|"
            + QByteArray(255, 'n');
        const QByteArrayList names = text.split('|');
        for (const auto &name : names)
            trial.makeFile("source/" + name, name);
        QCOMPARE(trial.makeImage(true).status, 0);
        const auto items = itemsOf(trial);
        QCOMPARE(items.size(), names.size());
        const auto image = contentOf(trial.image());
        for (const auto &name : {u"a:b"_s, u"%FF%FE"_s, u"e\u0301"_s, u"README"_s})
            QVERIFY(image.mid(items[name][u"offset"].toInt()).startsWith(name.toUtf8() + '\0'));
        trial.require(sevenZip);
        trial.require(haveTheSameContents);
    }

    // Readers without the whole table of folded characters can search plain names only.
    void ignoresTheCaseOfPlainNames()
    {
        for (const auto &[names, isCaseSensitive] :
             {std::pair("b|A|_|Z|a b", false), std::pair("\u00C4|\u00E4|B", true),
              std::pair("x|X|y", true)}) {
            const ImageTrial trial;
            for (const auto &name : QByteArray(names).split('|'))
                trial.makeFile("source/" + name + "/in/" + name, name);
            QCOMPARE(trial.makeImage(true).status, 0);
            QCOMPARE(soundHfs({trial.image()})[u"isCaseSensitive"].toBool(), isCaseSensitive);
        }
    }

    void modesAndDates()
    {
        const ImageTrial trial;
        trial.require(u"cd source && touch -d @0 set-user-id && chmod 6755 set-user-id"_s);
        trial.require(u"touch -d @-2082844801 source/private && chmod 600 source/private"_s);
        trial.require(u"touch -d @3000000000 source/late"_s);
        QCOMPARE(trial.makeImage(true).status, 0);
        const auto items = itemsOf(trial);
        QCOMPARE(items[u"set-user-id"][u"mode"].toInt(), 0100755);
        QCOMPARE(items[u"private"][u"mode"].toInt(), 0100644);
        QCOMPARE(items[u"set-user-id"][u"modified"].toInteger(), 2'082'844'800);
        QCOMPARE(items[u"private"][u"modified"].toInteger(), 0); // a second before 1904
        QCOMPARE(items[u"late"][u"modified"].toInteger(), 0xFFFFFFFF); // after 2040-02-06
    }

    void deepFolders()
    {
        const ImageTrial trial; // with a path of 6,120 bytes
        trial.require(uR"(cd source && python3 -c 'import os
for i in range(120):
  os.mkdir("d" * 50)
  os.chdir("d" * 50)
open("bottom", "w")
open(b"\xCE\x90" * 127, "w")')"_s);
        QCOMPARE(trial.makeImage(true).status, 0);
        const auto items = itemsOf(trial);
        QCOMPARE(items.size(), 122);
        QVERIFY(items.contains(QString(QString(50, u'd') + u'/').repeated(120) + u"bottom"_s));
    }

    void manyFiles()
    {
        const ImageTrial trial;
        trial.require(u"cd source && mkdir 0 && (cd 0 && seq 200 | xargs touch) &&"
                      " for i in $(seq 99); do cp -al 0 $i; done"_s);
        QCOMPARE(trial.makeImage(true).status, 0);
        QCOMPARE(itemsOf(trial).size(), 20'100);
    }

    void sparseFilesStaySparse()
    {
        constexpr qint64 size = 4'509'715'660; // 4.2 GiB
        const ImageTrial trial;
        trial.require(u"truncate -s %1 source/sparse"_s.arg(size));
        trial.require(
            u"printf middle | dd of=source/sparse bs=1 seek=%1 conv=notrunc"_s.arg(size / 2));
        trial.makeFile("source/then", "after the hole");
        QCOMPARE(trial.makeImage(true).status, 0);
        struct stat status;
        QCOMPARE(::stat(qPrintable(trial.image()), &status), 0);
        QVERIFY2(status.st_blocks * 512 < 1'000'000, qPrintable(QString::number(status.st_blocks)));
        const auto items = itemsOf(trial);
        QCOMPARE(items[u"sparse"][u"size"].toInteger(), size);
        QFile image(trial.image());
        QVERIFY(image.open(QIODevice::ReadOnly));
        image.seek(items[u"sparse"][u"offset"].toInteger() + size / 2 - 1);
        QCOMPARE(image.read(8), QByteArray("\0middle\0", 8));
        image.seek(items[u"then"][u"offset"].toInteger());
        QCOMPARE(image.read(14), "after the hole");
    }

    void specialFilesAreLeftOut()
    {
        const ImageTrial trial;
        trial.makeFile("source/file", "x");
        trial.require(u"mkfifo 'source/a fifo' 'source/b fifo'"_s);
        const auto end = trial.makeImage(true);
        QCOMPARE(end.status, 0);
        QVERIFY(end.errors.contains("source/a fifo") && end.errors.contains("2 in all"));
        QCOMPARE(end.errorLines().size(), 1);
        QCOMPARE(itemsOf(trial).keys(), QStringList{u"file"_s});
    }

    void anImageInItsOwnSourceIsLeftOut()
    {
        for (const bool isHfs : {true, false}) {
            const ImageTrial trial;
            trial.makeFile("source/sub/other", "y");
            trial.makeFile("source/sub/image", "older");
            trial.require(u"ln -s source/sub/image image"_s);
            QCOMPARE(trial.makeImage(isHfs).status, 0);
            trial.require(isHfs ? sevenZip + u" && mv Volume/* ."_s : rockRidge);
            trial.require(u"test -L image && cmp out/sub/other source/sub/other"_s);
            trial.require(u"test ! -e out/sub/image"_s);
        }
    }

    void aFailureLeavesTheOlderImage()
    {
        // By a shell script that runs in the trial's folder.
        leavesTheOlderImageAfter(u"rm -r source"_s, "/source: No such file or directory\n");
        leavesTheOlderImageAfter(u"rm -r source; mkfifo source"_s, "/source: Not a directory\n");
        leavesTheOlderImageAfter(u"chmod 555 ."_s, ": Permission denied\n");
        leavesTheOlderImageAfter(u"chmod 0 source/sub/file"_s, "sub/file");
        leavesTheOlderImageAfter(u"chmod 0 source/sub"_s, "sub");
    }

private:
    static void leavesTheOlderImageAfter(const QString &preparation, const QByteArray &reason)
    {
        // Takes from root what lets it ignore the modes of files.
        const QStringList obeyingModes = ::geteuid() != 0
            ? QStringList()
            : u"setpriv --bounding-set=-all --inh-caps=-all"_s.split(u' ');
        for (const bool isHfs : {true, false}) {
            const ImageTrial trial;
            trial.makeFile("source/sub/file", "x");
            trial.makeFile("image", "older");
            trial.require(preparation);
            const QStringList before = trial.entries();
            const auto end = trial.makeImage(isHfs, u"V"_s, obeyingModes);
            QCOMPARE(end.status, 1);
            QVERIFY2(end.errors.startsWith("hdiutil: ") && end.errors.contains(reason),
                     end.errors.constData());
            QCOMPARE(end.errorLines().size(), 1);
            QCOMPARE(trial.entries(), before);
            QCOMPARE(contentOf(trial.image()), "older");
        }
    }
};

QTEST_GUILESS_MAIN(TestImages)
#include "tst_images.moc"
