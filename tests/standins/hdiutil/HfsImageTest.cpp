// Proves that an HFS Plus image is sound by a second reading of the format, that it holds the whole
// folder, and that an unpacker that had no part in making it finds the same.

#include "HfsReader.h"
#include "ImageTrial.h"

#include <QTest>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
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

ImageTrial::Tree below(const QByteArray &folder, const ImageTrial::Tree &tree)
{
    ImageTrial::Tree result;
    for (auto item = tree.cbegin(); item != tree.cend(); ++item)
        result.insert(folder + '/' + item.key(), item.value());
    result.insert(folder + '/', {});
    return result;
}

} // namespace

class HfsImageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsTheWholeFolder();
    void oddNamesKeepTheirContent();
    void orderOfNames_data();
    void orderOfNames();
    void modesAndDates();
    void deepFolders();
    void manyFiles();
    void sparseFilesStaySparse();
    void specialFilesAreLeftOut();
    void outputInsideTheSource();
};

void HfsImageTest::holdsTheWholeFolder()
{
    const ImageTrial trial;
    trial.makeFile("source/empty", "");
    trial.makeFile("source/one block", QByteArray(4096, 'x'));
    trial.makeFile("source/sub/more", QByteArray(300'001, 'y'));
    trial.makeFile("source/sub/line\nbreak", "z");
    trial.makeFolder("source/empty folder");
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
    QCOMPARE(treeOf(reader).keys(), trial.tree("source").keys());
    QVERIFY(treeOf(reader) == trial.tree("source"));
    QVERIFY(reader.items().value(u"link"_s).isLink && reader.items().value(u"dangling"_s).isLink);

    const auto seen = trial.unpacked(unpacker);
    const auto expected = below("Gru\u0308n_Blau", trial.tree("source"));
    QCOMPARE(seen.keys(), expected.keys());
    QVERIFY(seen == expected);

    QFile image(trial.image());
    QVERIFY(image.open(QIODevice::ReadOnly));
    const auto before = image.readAll();
    QCOMPARE(trial.makeImage(true, u"Grün/Blau"_s).status, 0);
    QFile again(trial.image());
    QVERIFY(again.open(QIODevice::ReadOnly));
    QVERIFY(again.readAll() == before);
}

void HfsImageTest::oddNamesKeepTheirContent()
{
    const ImageTrial trial;
    const QByteArrayList names{"a:b",
                               "100%",
                               "\xFF\xFE",
                               "%FF%FE",
                               "\u00E9",
                               "e\u0301",
                               "\uD55C\uAE00",
                               "\u0130",
                               "\u0131",
                               "stra\u00DFe",
                               "STRASSE",
                               "\U0001F600",
                               "zero\u200Dwidth",
                               "zerowidth",
                               "\uFEFF",
                               "README",
                               "readme",
                               " ",
                               "tab\tend",
                               "-rf",
                               QByteArray(255, 'n'),
                               "\\",
                               "~",
                               ".hidden",
                               "\u03A3",
                               "\u03C3",
                               "\u03C2"};
    for (const auto &name : names)
        trial.makeFile("source/" + name, "content of " + name);
    QCOMPARE(trial.makeImage(true).status, 0);
    const HfsReader reader(trial.image());
    QCOMPARE(reader.problems(), QStringList());
    QVERIFY(reader.isCaseSensitive());
    QCOMPARE(reader.items().size(), names.size());
    for (const auto &name : {u"a:b"_s, u"%FF%FE"_s, u"e\u0301"_s, u"README"_s, u"stra\u00DFe"_s})
        QCOMPARE(reader.content(name), QByteArray("content of " + name.toUtf8()));

    QByteArrayList expected = trial.tree("source").values();
    const auto unpacked = trial.unpacked(unpacker);
    QCOMPARE(unpacked.value("failed"), QByteArray());
    QByteArrayList seen = unpacked.values();
    seen.removeAll({}); // the folder itself
    std::sort(expected.begin(), expected.end());
    std::sort(seen.begin(), seen.end());
    QCOMPARE(seen, expected);
}

void HfsImageTest::orderOfNames_data()
{
    QTest::addColumn<QByteArrayList>("names");
    QTest::addColumn<bool>("isCaseSensitive");
    QTest::newRow("plain letters") << QByteArrayList{"b", "A", "_", "Z", "a b"} << false;
    QTest::newRow("accents") << QByteArrayList{"\u00C4", "\u00E4", "B"} << true;
    QTest::newRow("lower case only") << QByteArrayList{"\u0436", "\u00DF", "B"} << false;
    QTest::newRow("two cases of one name") << QByteArrayList{"x", "X", "y"} << true;
    QTest::newRow("Cyrillic capital") << QByteArrayList{"\u0416", "B"} << true;
}

void HfsImageTest::orderOfNames()
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

void HfsImageTest::modesAndDates()
{
    const ImageTrial trial;
    const auto make = [&trial](const char *name, mode_t mode, time_t modified) {
        const auto path = trial.path(QByteArray("source/") + name);
        trial.makeFile(QByteArray("source/") + name, name);
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

void HfsImageTest::deepFolders()
{
    const ImageTrial trial;
    const int start = ::open(trial.path("source").constData(), O_DIRECTORY | O_CLOEXEC);
    const QByteArray name(50, 'd');
    int folder = start;
    QByteArray path;
    for (int level = 0; level < 120; ++level) { // a path of 6,120 bytes
        ::mkdirat(folder, name.constData(), 0755);
        const int next = ::openat(folder, name.constData(), O_DIRECTORY | O_CLOEXEC);
        ::close(folder);
        folder = next;
        path += name + '/';
    }
    for (const QByteArray &file : {QByteArray("bottom"), QByteArray("\u0390").repeated(127)})
        ::close(::openat(folder, file.constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644));
    ::close(folder);
    QCOMPARE(trial.makeImage(true).status, 0);
    const HfsReader reader(trial.image());
    QCOMPARE(reader.problems(), QStringList());
    QCOMPARE(reader.items().size(), 122);
    QVERIFY(reader.items().contains(QString::fromLatin1(path) + u"bottom"_s));
}

void HfsImageTest::manyFiles()
{
    const ImageTrial trial;
    for (int i = 0; i < 100; ++i) {
        const auto folder = "source/folder " + QByteArray::number(i);
        trial.makeFile(folder + "/file 0", QByteArray::number(i));
        const auto file = trial.path(folder + "/file ");
        for (int link = 1; link < 200; ++link) // much faster to make than files
            ::link((file + '0').constData(), (file + QByteArray::number(link)).constData());
    }
    QCOMPARE(trial.makeImage(true).status, 0);
    const HfsReader reader(trial.image());
    QCOMPARE(reader.problems(), QStringList());
    QCOMPARE(reader.items().size(), 20'100);
    QCOMPARE(reader.content(u"folder 77/file 142"_s), QByteArray("77"));
    QCOMPARE(ImageTrial::run({u"7z"_s, u"t"_s, u"-tHFS"_s, trial.image()}).status, 0);
}

void HfsImageTest::sparseFilesStaySparse()
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
    QCOMPARE(::stat(trial.path("image").constData(), &status), 0);
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

void HfsImageTest::specialFilesAreLeftOut()
{
    const ImageTrial trial;
    trial.makeFile("source/file", "x");
    QCOMPARE(::mkfifo(trial.path("source/a fifo").constData(), 0644), 0);
    QCOMPARE(::mkfifo(trial.path("source/b fifo").constData(), 0644), 0);
    const auto end = trial.makeImage(true);
    QCOMPARE(end.status, 0);
    QVERIFY(end.errors.contains("source/a fifo") && end.errors.contains("2 in all"));
    QCOMPARE(end.errors.count('\n'), 1);
    QCOMPARE(HfsReader(trial.image()).items().keys(), QStringList{u"file"_s});
}

void HfsImageTest::outputInsideTheSource()
{
    const ImageTrial trial;
    trial.makeFile("source/file", "x");
    trial.makeFile("source/out/other", "y");
    const auto image = QString::fromLocal8Bit(trial.path("source/out/new.dmg"));
    const auto source = QString::fromLocal8Bit(trial.path("source"));
    for (int i = 0; i < 2; ++i) { // the second time an older image stands there
        QCOMPARE(ImageTrial::run(ImageTrial::command(true, image, u"V"_s, source)).status, 0);
        const HfsReader reader(image);
        QCOMPARE(reader.problems(), QStringList());
        QCOMPARE(reader.items().keys(), (QStringList{u"file"_s, u"out"_s, u"out/other"_s}));
    }
}

QTEST_GUILESS_MAIN(HfsImageTest)
#include "HfsImageTest.moc"
