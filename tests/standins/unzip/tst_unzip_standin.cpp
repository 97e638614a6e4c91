// Proves that the archive that is named is unpacked, whatever its name means as a pattern.

#include "StandinRun.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

// An archive that holds one file, named after the archive.
void makeArchive(const QDir &folder, const QString &name)
{
    const QString script =
        u"mkdir -p \"$(dirname -- \"$0\")\" && entry=$(basename -- \"$0\" .zip) &&"
        " touch \"./$entry\" && zip -q made.zip \"./$entry\" && mv made.zip \"./$0\""_s;
    const RunResult made =
        runProgram(u"env"_s, {u"-C"_s, folder.path(), u"sh"_s, u"-c"_s, script, name});
    QVERIFY2(made.status == 0, made.errors.constData());
}

RunResult unpack(const QDir &folder, const QString &archive)
{
    return runStandin(u"unzip"_s,
                      {u"-q"_s, folder.filePath(archive), u"-d"_s, folder.filePath(u"out"_s)});
}

} // namespace

class tst_UnzipStandin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unpacksTheNamedArchive()
    {
        // The archive, and what its name would match as a pattern.
        for (const auto &[archive, other] :
             {std::pair(u"p[1].zip"_s, u"p1.zip"_s), std::pair(u"p\\*.zip"_s, u"p*.zip"_s),
              std::pair(u"d[1]/plain.zip"_s, u"d1/plain.zip"_s),
              std::pair(u"-p.zip"_s, u"p.zip"_s)}) {
            const QTemporaryDir own;
            const QDir folder(own.path());
            makeArchive(folder, other);
            makeArchive(folder, archive);
            const RunResult run = unpack(folder, archive);
            QCOMPARE(run.errors, QByteArray());
            QCOMPARE(run.status, 0);
            QCOMPARE(entriesOf(folder.filePath(u"out"_s)),
                     QStringList(QFileInfo(archive).completeBaseName()));
        }
    }

    void takesNoOtherArchiveForAMissingOne()
    {
        const QTemporaryDir own;
        QDir folder(own.path());
        makeArchive(folder,
                    u"photos.zip.zip"_s); // beside its entry photos.zip, which is no archive
        QCOMPARE(unpack(folder, u"photos.zip"_s).status, 9);
        QVERIFY(folder.remove(u"photos.zip"_s));
        const RunResult run = unpack(folder, u"photos.zip"_s);
        QCOMPARE(run.status, 1);
        QCOMPARE(run.errorLines().size(), 1);
        QCOMPARE(entriesOf(folder.filePath(u"out"_s)), QStringList());
    }
};

QTEST_GUILESS_MAIN(tst_UnzipStandin)
#include "tst_unzip_standin.moc"
