// Proves what the Zip page asks of the zip program, without starting it.

#include "ZipCommand.h"

#include <QTest>

using namespace Qt::StringLiterals;

class tst_ZipCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void packsTheFolderInOrder();
    void levels_data();
    void levels();
    void archives_data();
    void archives();
};

void tst_ZipCommand::packsTheFolderInOrder()
{
    const Command command = ZipCommand::pack(u"/a/source folder"_s, u"/docs/-x y.zip"_s, u"-9"_s);
    QCOMPARE(command.launchPath, u"/usr/bin/zip"_s);
    QCOMPARE(command.arguments,
             QStringList({u"-r"_s, u"/docs/-x y.zip"_s, u"."_s, u"-9"_s, u"-q"_s}));
    QCOMPARE(command.workingDirectory, u"/a/source folder"_s);
}

void tst_ZipCommand::levels_data()
{
    QTest::addColumn<int>("tag");
    QTest::addColumn<QString>("option");
    QTest::newRow("store") << 0 << u"-0"_s;
    QTest::newRow("faster") << 1 << u"-1"_s;
    QTest::newRow("better") << 2 << u"-9"_s;
    QTest::newRow("none") << -1 << u"-0"_s;
}

void tst_ZipCommand::levels()
{
    QFETCH(int, tag);
    QTEST(ZipCommand::compressRatio(tag), "option");
}

void tst_ZipCommand::archives_data()
{
    QTest::addColumn<QString>("output");
    QTest::addColumn<QString>("temporary");
    QTest::addColumn<QString>("written");
    QTest::newRow("plain") << u"/b/photos.zip"_s << u"/docs/photos.zip"_s << u"/docs/photos.zip"_s;
    QTest::newRow("no extension") << u"/b.d/photos"_s << u"/docs/photos"_s << u"/docs/photos.zip"_s;
    QTest::newRow("other extension") << u"/b/p.tar"_s << u"/docs/p.tar"_s << u"/docs/p.tar"_s;
    QTest::newRow("relative") << u"photos.zip"_s << u"/docs/photos.zip"_s << u"/docs/photos.zip"_s;
    QTest::newRow("trailing slash") << u"/b/p.zip/"_s << u"/docs/p.zip"_s << u"/docs/p.zip"_s;
}

void tst_ZipCommand::archives()
{
    QFETCH(QString, output);
    const QString temporary = ZipCommand::temporaryArchive(u"/docs"_s, output);
    QTEST(temporary, "temporary");
    QTEST(ZipCommand::writtenArchive(temporary), "written");
}

QTEST_GUILESS_MAIN(tst_ZipCommand)
#include "tst_zip_command.moc"
