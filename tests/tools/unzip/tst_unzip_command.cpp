// The new folder is named after the archive, less four characters, whatever they are.

#include "UnzipCommand.h"

#include <QTest>

using namespace Qt::StringLiterals;

class UnzipCommandTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void destination_data();
    void destination();
    void arguments();
};

void UnzipCommandTest::destination_data()
{
    QTest::addColumn<QString>("archive");
    QTest::addColumn<QString>("outputFolder");
    QTest::addColumn<std::optional<QString>>("expected");
    const auto row = [](const char *name, const QString &archive, const QString &output,
                        const std::optional<QString> &expected) {
        QTest::newRow(name) << archive << output << expected;
    };
    row("as meant", u"/a/photos.zip"_s, u"/b"_s, u"/b/photos"_s);
    row("slash at the end", u"/a/photos.zip"_s, u"/b/"_s, u"/b/photos"_s);
    row("top folder", u"/a/photos.zip"_s, u"/"_s, u"/photos"_s);
    row("upper case", u"/a/PHOTOS.ZIP"_s, u"/b"_s, u"/b/PHOTOS"_s);
    row("other extension", u"/a/book.epub"_s, u"/b"_s, u"/b/book."_s);
    row("no extension", u"/a/photos"_s, u"/b"_s, u"/b/ph"_s);
    row("dots inside", u"/a/v1.2.zip"_s, u"/b"_s, u"/b/v1.2"_s);
    row("relative without output folder", u"/a/photos.zip"_s, QString(), u"photos"_s);
    row("archive without folder", u"photos.zip"_s, u"/b"_s, u"/b/photos"_s);
    row("too short", u"/a folder/zip"_s, u"/b"_s, std::nullopt);
    row("nothing", QString(), u"/b"_s, std::nullopt);
    row("exactly four", u"/a/.zip"_s, u"/b"_s, u"/b/"_s);
}

void UnzipCommandTest::destination()
{
    QFETCH(QString, archive);
    QFETCH(QString, outputFolder);
    QFETCH(std::optional<QString>, expected);
    QCOMPARE(UnzipCommand::destination(archive, outputFolder), expected);
}

void UnzipCommandTest::arguments()
{
    const Command extract = UnzipCommand::extract(u"/a/photos.zip"_s, u"/b/photos"_s);
    QCOMPARE(extract.launchPath, u"/usr/bin/unzip"_s);
    QCOMPARE(extract.arguments.join(u'|'), u"-q|/a/photos.zip|-d|/b/photos"_s);
    QVERIFY(!extract.workingDirectory);
}

QTEST_APPLESS_MAIN(UnzipCommandTest)
#include "tst_unzip_command.moc"
