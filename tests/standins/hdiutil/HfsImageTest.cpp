// Proves that an HFS Plus image is sound by a second reading of the format, that it holds the whole
// folder, and that an unpacker that had no part in making it finds the same.

#include "HfsReader.h"
#include "ImageTrial.h"

#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

const QStringList unpacker{u"7z"_s, u"x"_s, u"-y"_s, u"-bd"_s, u"-tHFS"_s};

// The entries as the reader found them, in the form of a tree on the disk.
ImageTrial::Tree treeOf(const HfsReader &reader)
{
    ImageTrial::Tree tree;
    const auto items = reader.items();
    for (auto item = items.cbegin(); item != items.cend(); ++item) {
        const bool isFolder = item.value().isFolder;
        tree.insert(item.key().toUtf8() + (isFolder ? "/" : ""),
                    isFolder ? QByteArray() : reader.content(item.key()));
    }
    return tree;
}

QByteArrayList sorted(QByteArrayList contents)
{
    contents.removeAll({}); // folders
    std::sort(contents.begin(), contents.end());
    return contents;
}

} // namespace

class HfsImageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsTheWholeFolder()
    {
        const ImageTrial trial;
        trial.makeFile("source/empty", "");
        trial.makeFile("source/one block", QByteArray(4096, 'x'));
        trial.makeFile("source/sub/more", QByteArray(300'001, 'y'));
        trial.makeFile("source/sub/line\nbreak", "z");
        trial.makeFile("source/empty folder/", {});
        trial.makeLink("source/link", "sub/more");
        trial.makeLink("source/dangling", "no/such/\xFF");
        ::link(trial.path("source/one block").constData(),
               trial.path("source/sub/hard link").constData());

        const auto end = trial.makeImage(true, u"Grün/Blau"_s);
        QCOMPARE(end.errors, QByteArray());
        QCOMPARE(end.status, 0);
        const HfsReader reader(trial.image());
        QCOMPARE(reader.problems(), QStringList());
        QCOMPARE(reader.volumeName(), u"Gru\u0308n/Blau"_s);
        const auto source = trial.tree("source");
        QCOMPARE(treeOf(reader).keys(), source.keys());
        QVERIFY(treeOf(reader) == source);
        QVERIFY(reader.items().value(u"link"_s).isLink);
        QVERIFY(reader.items().value(u"dangling"_s).isLink);

        const auto unpacked = trial.unpacked(unpacker);
        QCOMPARE(unpacked.size(), source.size() + 1);
        for (auto item = source.cbegin(); item != source.cend(); ++item)
            QVERIFY2(unpacked.value("Gru\u0308n_Blau/" + item.key(), "none") == item.value(),
                     item.key().constData());

        const auto before = contentOf(trial.image());
        QCOMPARE(trial.makeImage(true, u"Grün/Blau"_s).status, 0);
        QVERIFY(contentOf(trial.image()) == before);
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
            trial.makeFile("source/" + name, "content of " + name);
        QCOMPARE(trial.makeImage(true).status, 0);
        const HfsReader reader(trial.image());
        QCOMPARE(reader.problems(), QStringList());
        QVERIFY(reader.isCaseSensitive());
        QCOMPARE(reader.items().size(), names.size());
        for (const auto &name : {u"a:b"_s, u"%FF%FE"_s, u"e\u0301"_s, u"README"_s})
            QCOMPARE(reader.content(name), QByteArray("content of " + name.toUtf8()));
        QCOMPARE(sorted(trial.unpacked(unpacker).values()), sorted(trial.tree("source").values()));
    }

    void orderOfNames_data()
    {
        QTest::addColumn<QByteArrayList>("names");
        QTest::addColumn<bool>("isCaseSensitive");
        QTest::newRow("plain letters") << QByteArrayList{"b", "A", "_", "Z", "a b"} << false;
        QTest::newRow("accents") << QByteArrayList{"\u00C4", "\u00E4", "B"} << true;
        QTest::newRow("two cases of one name") << QByteArrayList{"x", "X", "y"} << true;
    }
    void orderOfNames()
    {
        QFETCH(QByteArrayList, names);
        const ImageTrial trial;
        for (const auto &name : names)
            trial.makeFile("source/" + name + "/in/" + name, name);
        QCOMPARE(trial.makeImage(true).status, 0);
        const HfsReader reader(trial.image());
        QCOMPARE(reader.problems(), QStringList());
        QTEST(reader.isCaseSensitive(), "isCaseSensitive");
    }

    void modesAndDates()
    {
        const ImageTrial trial;
        const auto make = [&trial](const QByteArray &name, mode_t mode, time_t modified) {
            const auto path = trial.path("source/" + name);
            trial.makeFile("source/" + name, name);
            const timespec times[]{{modified, 0}, {modified, 0}};
            ::utimensat(AT_FDCWD, path.constData(), times, 0);
            ::chmod(path.constData(), mode);
        };
        make("set-user-id", 06755, 0);
        make("private", 0600, -2'082'844'801); // a second before 1904
        make("late", 0664, 3'000'000'000); // after 2040-02-06
        QCOMPARE(trial.makeImage(true).status, 0);
        const auto items = HfsReader(trial.image()).items();
        QCOMPARE(items.value(u"set-user-id"_s).mode, quint16(0100755));
        QCOMPARE(items.value(u"set-user-id"_s).modified, 2'082'844'800U);
        QCOMPARE(items.value(u"private"_s).mode, quint16(0100644));
        QCOMPARE(items.value(u"private"_s).modified, 0U);
        QCOMPARE(items.value(u"late"_s).modified, 0xFFFFFFFFU);
    }

    void deepFolders()
    {
        const ImageTrial trial;
        int folder = ::open(trial.path("source").constData(), O_DIRECTORY | O_CLOEXEC);
        const QByteArray name(50, 'd');
        for (int level = 0; level < 120; ++level) { // a path of 6,120 bytes
            ::mkdirat(folder, name.constData(), 0755);
            const int next = ::openat(folder, name.constData(), O_DIRECTORY | O_CLOEXEC);
            ::close(folder);
            folder = next;
        }
        for (const QByteArray &file : {QByteArray("bottom"), QByteArray("\u0390").repeated(127)})
            ::close(::openat(folder, file.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644));
        ::close(folder);
        QCOMPARE(trial.makeImage(true).status, 0);
        const HfsReader reader(trial.image());
        QCOMPARE(reader.problems(), QStringList());
        QCOMPARE(reader.items().size(), 122);
        const QString path = QString::fromLatin1(name + '/').repeated(120);
        QVERIFY(reader.items().contains(path + u"bottom"_s));
    }

    void manyFiles()
    {
        const ImageTrial trial;
        for (int i = 0; i < 100; ++i) {
            const auto file = "source/folder " + QByteArray::number(i) + "/file ";
            trial.makeFile(file + '0', QByteArray::number(i));
            for (int link = 1; link < 200; ++link) // much faster to make than files
                ::link(trial.path(file + '0').constData(),
                       trial.path(file + QByteArray::number(link)).constData());
        }
        QCOMPARE(trial.makeImage(true).status, 0);
        const HfsReader reader(trial.image());
        QCOMPARE(reader.problems(), QStringList());
        QCOMPARE(reader.items().size(), 20'100);
        QCOMPARE(reader.content(u"folder 77/file 142"_s), QByteArray("77"));
    }

    void sparseFilesStaySparse()
    {
        constexpr qint64 size = 4'509'715'660; // 4.2 GiB
        const ImageTrial trial;
        trial.makeFile("source/sparse", "begin");
        QFile file(QString::fromLocal8Bit(trial.path("source/sparse")));
        QVERIFY(file.open(QIODevice::ReadWrite) && file.resize(size));
        QVERIFY(file.seek(size / 2) && file.write("middle") == 6);
        file.close();
        trial.makeFile("source/then", "after the hole");
        QCOMPARE(trial.makeImage(true).status, 0);
        struct stat status;
        QCOMPARE(::stat(qPrintable(trial.image()), &status), 0);
        QVERIFY2(status.st_blocks * 512 < 1'000'000, qPrintable(QString::number(status.st_blocks)));
        const HfsReader reader(trial.image());
        QCOMPARE(reader.problems(), QStringList());
        const auto item = reader.items().value(u"sparse"_s);
        QCOMPARE(item.size, quint64(size));
        QCOMPARE(reader.content(u"then"_s), QByteArray("after the hole"));
        QFile image(trial.image());
        QVERIFY(image.open(QIODevice::ReadOnly) && image.seek(qint64(item.offset) + size / 2 - 1));
        QCOMPARE(image.read(8), QByteArray("\0middle\0", 8));
    }

    void specialFilesAreLeftOut()
    {
        const ImageTrial trial;
        trial.makeFile("source/file", "x");
        QCOMPARE(::mkfifo(trial.path("source/a fifo").constData(), 0644), 0);
        QCOMPARE(::mkfifo(trial.path("source/b fifo").constData(), 0644), 0);
        const auto end = trial.makeImage(true);
        QCOMPARE(end.status, 0);
        QVERIFY(end.errors.contains("source/a fifo") && end.errors.contains("2 in all"));
        QCOMPARE(end.errorLines().size(), 1);
        QCOMPARE(HfsReader(trial.image()).items().keys(), QStringList{u"file"_s});
    }

    void outputInsideTheSource()
    {
        const ImageTrial trial;
        trial.makeFile("source/out/other", "y");
        const auto image = QString::fromLocal8Bit(trial.path("source/out/new.dmg"));
        const auto source = QString::fromLocal8Bit(trial.path("source"));
        for (int i = 0; i < 2; ++i) { // the second time an older image stands there
            QCOMPARE(ImageTrial::run(ImageTrial::command(true, image, u"V"_s, source)).status, 0);
            const HfsReader reader(image);
            QCOMPARE(reader.problems(), QStringList());
            QCOMPARE(reader.items().keys(), (QStringList{u"out"_s, u"out/other"_s}));
        }
    }
};

QTEST_GUILESS_MAIN(HfsImageTest)
#include "HfsImageTest.moc"
