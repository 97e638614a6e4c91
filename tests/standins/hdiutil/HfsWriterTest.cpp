// Proves the parts of the HFS Plus writer that no folder of a reasonable size reaches: trees with
// map nodes, and files that change while they are copied.

#include "HfsBTree.h"
#include "HfsRecords.h"
#include "HfsTreeReader.h"
#include "ImageFile.h"

#include <QTemporaryFile>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class HfsWriterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void treesOfEverySize_data();
    void treesOfEverySize();
    void fileThatChanges_data();
    void fileThatChanges();
};

void HfsWriterTest::treesOfEverySize_data()
{
    QTest::addColumn<int>("records");
    QTest::addColumn<quint32>("mapNodes");
    QTest::newRow("none") << 0 << 0U;
    QTest::newRow("one leaf") << 1 << 0U;
    QTest::newRow("one index node") << 40 << 0U;
    QTest::newRow("several levels") << 5'000 << 0U;
    QTest::newRow("map in the header just full") << 13'720 << 0U; // 2048 nodes
    QTest::newRow("one node more") << 13'721 << 1U;
    QTest::newRow("many map nodes") << 100'000 << 4U;
}

void HfsWriterTest::treesOfEverySize()
{
    QFETCH(int, records);
    QTemporaryFile file;
    QVERIFY(file.open());
    hfs::ImageFile image(file.handle(), "image");
    hfs::BTreeWriter tree(image, {512, 516, 0, 6});
    for (int i = 0; i < records; ++i) {
        const auto name = u"%1"_s.arg(i % 1000, 3, 10, QChar(u'0')).toStdU16String();
        tree.append(hfs::catalogKey(static_cast<std::uint32_t>(i / 1000), name), hfs::Bytes(50));
    }
    const auto size = tree.finish();
    image.flush();
    QCOMPARE(quint64(file.size()), size);
    const HfsTreeReader reader(file.map(0, file.size()), size);
    QCOMPARE(reader.problems(), QStringList());
    QCOMPARE(reader.records().size(), records);
    QTEST(reader.mapNodes(), "mapNodes");
}

void HfsWriterTest::fileThatChanges_data()
{
    QTest::addColumn<qint64>("size"); // when the image is told of it
    QTest::addColumn<qint64>("changedSize"); // when it is read
    QTest::addColumn<bool>("isSparse");
    QTest::addColumn<quint64>("taken");
    QTest::newRow("as it was") << qint64{300'000} << qint64{300'000} << false << quint64{300'000};
    QTest::newRow("has grown") << qint64{300'000} << qint64{400'000} << false << quint64{300'000};
    QTest::newRow("was cut") << qint64{300'000} << qint64{5} << false << quint64{5};
    QTest::newRow("was emptied") << qint64{300'000} << qint64{0} << false << quint64{0};
    QTest::newRow("sparse, grown")
        << qint64{9'000'000} << qint64{9'999'999} << true << quint64{9'000'000};
    QTest::newRow("sparse, cut in the hole")
        << qint64{9'000'000} << qint64{8'000'000} << true << quint64{8'000'000};
    QTest::newRow("sparse, emptied") << qint64{9'000'000} << qint64{0} << true << quint64{0};
}

void HfsWriterTest::fileThatChanges()
{
    QFETCH(qint64, size);
    QFETCH(qint64, changedSize);
    QFETCH(bool, isSparse);
    QTemporaryFile source;
    QVERIFY(source.open());
    source.write(QByteArray(isSparse ? 10 : size, 'x'));
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
    QTEST(quint64(taken), "taken");
    QVERIFY(source.seek(0) && file.seek(0));
    QVERIFY(file.read(qint64(taken)) == source.read(qint64(taken)));
    QVERIFY(file.readAll().trimmed().endsWith(QByteArray(4096, 'y')));
}

QTEST_GUILESS_MAIN(HfsWriterTest)
#include "HfsWriterTest.moc"
