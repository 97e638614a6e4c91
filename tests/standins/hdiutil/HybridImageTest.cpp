// Proves that a hybrid image shows the whole folder to readers of Rock Ridge, Joliet and HFS Plus,
// whatever the files and the volume are called.

#include "HybridImage.h"

#include "ImageTrial.h"

#include <QTest>
#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

class HybridImageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsTheWholeFolder()
    {
        const ImageTrial trial;
        const QByteArray names = "a=b|*|--|-rf|line\nbreak|\xFF|ab:c|back\\slash|\u00E9|\U0001F600|"
                                 "README|readme|"
            + QByteArray(200, 'n');
        for (const auto &name : names.split('|'))
            trial.makeFile("source/" + name, "content of " + name);
        trial.makeFile("source/sub/empty", "");
        trial.makeFile("source/empty folder/", {});
        trial.makeLink("source/sub/link", "../README");
        const auto end = trial.makeImage(false, u"Grün"_s);
        QCOMPARE(end.errors, QByteArray());
        QCOMPARE(end.status, 0);

        const auto expected = trial.tree("source");
        const auto unpacked = trial.unpacked({u"bsdtar"_s, u"-xf"_s}); // reads Rock Ridge
        QCOMPARE(unpacked.keys(), expected.keys());
        QVERIFY(unpacked == expected);

        auto contents = expected.values(); // Joliet has other names and no links
        contents.removeOne("../README");
        auto seen = trial.unpacked({u"7z"_s, u"x"_s, u"-y"_s, u"-bd"_s}).values();
        std::sort(contents.begin(), contents.end());
        std::sort(seen.begin(), seen.end());
        QCOMPARE(seen, contents);

        const auto info = informationOn(trial);
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

    void emptyFolder()
    {
        const ImageTrial trial;
        QCOMPARE(trial.makeImage(false, u""_s).status, 0);
        const auto info = informationOn(trial);
        QVERIFY2(info.contains("Volume id: Untitled"), info.constData());
    }

    void outputInsideTheSource()
    {
        const ImageTrial trial;
        trial.makeFile("source/file", "x");
        trial.makeFile("source/image", "older");
        trial.makeLink("image", "source/image");
        QCOMPARE(trial.makeImage(false).status, 0);
        QCOMPARE(trial.unpacked({u"bsdtar"_s, u"-xf"_s}), (ImageTrial::Tree{{"file", "x"}}));
        QVERIFY(trial.tree("source").value("image").size() > 30'000);
    }

    void volumeNames()
    {
        QCOMPARE(hybridVolumeName("\x01\x7F\n"), "Untitled");
        QCOMPARE(hybridVolumeName("a\nb\xC2\x85"), "ab");
        QCOMPARE(hybridVolumeName("a\xFF"), "a_");
        QCOMPARE(hybridVolumeName(std::string(31, 'v') + "\u00E9"), std::string(31, 'v'));
    }

private:
    static QByteArray informationOn(const ImageTrial &trial)
    {
        return ImageTrial::run({u"isoinfo"_s, u"-d"_s, u"-i"_s, trial.image()}).output;
    }
};

QTEST_GUILESS_MAIN(HybridImageTest)
#include "HybridImageTest.moc"
