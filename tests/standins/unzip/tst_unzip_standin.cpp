// Proves that the archive that is named is unpacked, whatever its name means as a pattern.

#include "StandinRun.h"

#include <QTemporaryDir>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class tst_UnzipStandin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_own = std::make_unique<QTemporaryDir>();
        m_folder.setPath(m_own->path());
    }

    void unpacksTheNamedArchive_data()
    {
        QTest::addColumn<QString>("archive");
        QTest::addColumn<QString>("other"); // what the name would match as a pattern
        QTest::newRow("brackets") << u"p[1].zip"_s << u"p1.zip"_s;
        QTest::newRow("star") << u"p*.zip"_s << u"photos.zip"_s;
        QTest::newRow("backslash and star") << u"p\\*.zip"_s << u"p*.zip"_s;
        QTest::newRow("folder") << u"d[1]/plain.zip"_s << u"d1/plain.zip"_s;
        QTest::newRow("dash") << u"-p.zip"_s << u"p.zip"_s;
    }
    void unpacksTheNamedArchive()
    {
        QFETCH(QString, archive);
        QFETCH(QString, other);
        makeArchive(other);
        makeArchive(archive);
        const RunResult run = unpack(archive);
        QCOMPARE(run.errors, QByteArray());
        QCOMPARE(run.status, 0);
        QCOMPARE(unpacked(), QStringList(QFileInfo(archive).completeBaseName()));
    }

    void takesNoOtherArchiveForAMissingOne()
    {
        makeArchive(u"photos.zip.zip"_s); // beside its entry photos.zip, which is no archive
        QCOMPARE(unpack(u"photos.zip"_s).status, 9);
        QCOMPARE(unpacked(), QStringList());
        QVERIFY(m_folder.remove(u"photos.zip"_s));
        const RunResult run = unpack(u"photos.zip"_s);
        QCOMPARE(run.status, 1);
        QCOMPARE(run.errorLines().size(), 1);
        QCOMPARE(unpacked(), QStringList());
    }

private:
    // An archive that holds one file, named after the archive.
    void makeArchive(const QString &name) const
    {
        const QString entry = QFileInfo(name).completeBaseName();
        m_folder.mkpath(QFileInfo(name).path());
        writeFile(m_folder.filePath(entry), "content");
        const RunResult zip = runProgram(u"sh"_s,
                                         {u"-c"_s, u"cd \"$1\" && zip -q \"$2\" \"./$3\""_s,
                                          u"sh"_s, m_folder.path(), u"made.zip"_s, entry});
        QCOMPARE(zip.status, 0);
        QVERIFY(QFile::rename(m_folder.filePath(u"made.zip"_s), m_folder.filePath(name)));
    }

    RunResult unpack(const QString &archive) const
    {
        return runStandin(
            u"unzip"_s,
            {u"-q"_s, m_folder.filePath(archive), u"-d"_s, m_folder.filePath(u"out"_s)});
    }
    QStringList unpacked() const { return entriesOf(QDir(m_folder.filePath(u"out"_s))); }

    std::unique_ptr<QTemporaryDir> m_own;
    QDir m_folder;
};

QTEST_GUILESS_MAIN(tst_UnzipStandin)
#include "tst_unzip_standin.moc"
