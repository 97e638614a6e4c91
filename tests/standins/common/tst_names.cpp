// Proves that names of other scripts pass from what the pages ask for through the programs that do
// it to what is made, and that the tests' own frame works for a user without any name.
#include "StandinRun.h"
#include "UnzipCommand.h"
#include "ZipCommand.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace
{

// As the page's runner does: a program of ours in the place of the system's, no shell.
QByteArray errorsOf(const Command &command)
{
    QStringList words{u"-C"_s, command.workingDirectory.value_or(u"/"_s)};
    words << programPath(command.launchPath, u"" TOOLVANE_BUILD_DIR "/libexec/toolvane"_s);
    const RunResult end = runProgram(u"env"_s, words + command.arguments);
    return end.status == 0 ? end.errors : "status " + QByteArray::number(end.status) + end.errors;
}

QByteArray unpacked(const QStringList &program)
{
    const RunResult end = runProgram(program.first(), program.mid(1));
    return end.status == 0 ? QByteArray() : end.output + end.errors;
}

// The paths of all files below, without the folder; HFS Plus takes characters apart.
QStringList filesIn(const QString &folder)
{
    QStringList files;
    QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext())
        files
            << QDir(folder).relativeFilePath(walk.next()).normalized(QString::NormalizationForm_C);
    return files;
}

} // namespace

class TestNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data()
    {
        QTest::addColumn<QString>("name");
        for (const auto &name :
             {u"\u5047\u671f\u7167\u7247"_s, // Chinese
              u"\u041c\u043e\u0439 \u0444\u0430\u0439\u043b"_s, // Cyrillic
              u"\u0639\u0637\u0644\u0629 \u0627\u0644\u0635\u064a\u0641"_s}) // Arabic
            QTest::newRow(qPrintable(name)) << name;
    }

    void init()
    {
        QFETCH_GLOBAL(QString, name);
        m_dir = std::make_unique<QTemporaryDir>();
        m_folder = m_dir->filePath(name);
        m_source = m_folder + u"/in/"_s + name;
        m_file = name + u'/' + name + u".txt"_s;
        QVERIFY(QDir().mkpath(m_source + u'/' + name));
        writeFile(m_source + u'/' + m_file, name.toUtf8());
    }

    void archives()
    {
        const QString archive = m_source + u".zip"_s;
        const QString folder = *UnzipCommand::destination(archive, m_folder);
        QCOMPARE(errorsOf(ZipCommand::pack(m_source, archive, u"-1"_s)), QByteArray());
        QCOMPARE(errorsOf(UnzipCommand::extract(archive, folder)), QByteArray());
        holdsTheFile(folder, m_file);
    }

    void images()
    {
        QFETCH_GLOBAL(QString, name);
        const QString image = m_folder + u'/' + name;
        const QString out = m_dir->filePath(u"out"_s);
        const auto makeHybrid = [&](const QStringList &kind, const QString &output) {
            const QStringList rest{u"-o"_s,    output,       u"-default-volume-name"_s, name,
                                   u"-ov"_s, u"-quiet"_s, m_source};
            return errorsOf({u"/usr/bin/hdiutil"_s, QStringList{u"makehybrid"_s} + kind + rest});
        };
        QCOMPARE(makeHybrid({u"-hfs"_s}, image + u".dmg"_s), QByteArray());
        QCOMPARE(unpacked({u"7z"_s, u"x"_s, u"-bd"_s, image + u".dmg"_s, u"-o"_s + out}),
                 QByteArray());
        holdsTheFile(out, name + u'/' + m_file); // below the volume's name

        QVERIFY(QDir(out).removeRecursively() && QDir().mkpath(out));
        QCOMPARE(makeHybrid({}, image + u".iso"_s), QByteArray());
        QCOMPARE(unpacked({u"bsdtar"_s, u"-xf"_s, image + u".iso"_s, u"-C"_s, out}), QByteArray());
        holdsTheFile(out, m_file);
    }

    void media()
    {
        QFETCH_GLOBAL(QString, name);
        const QString base = m_folder + u'/' + name;
        QCOMPARE(unpacked(u"ffmpeg -v error -f lavfi -i testsrc2=s=64x64:d=1"_s.split(u' ')
                          << base + u".mpg"_s),
                 QByteArray());
        QCOMPARE(errorsOf({u"/usr/bin/avconvert"_s,
                           {u"--preset"_s, u"PresetLowQuality"_s, u"--source"_s, base + u".mpg"_s,
                            u"--output"_s, base + u".m4v"_s, u"-q"_s}}),
                 QByteArray());
        QVERIFY(contentOf(base + u".m4v"_s).mid(4).startsWith("ftypM4V"));
        QCOMPARE(errorsOf({u"/usr/bin/say"_s,
                           {name, u"--voice=Russian"_s, u"--rate=175"_s,
                            u"--output-file="_s + base + u".aiff"_s}}),
                 QByteArray());
        QVERIFY(contentOf(base + u".aiff"_s).startsWith("FORM"));
    }

    // The only user there is has another number.
    void sandboxOfAUserWithoutAName()
    {
        const QString users = m_dir->filePath(u"passwd"_s);
        writeFile(users, "other:x:64999:64999:::/bin/sh\n");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"NSS_WRAPPER_PASSWD"_s, users);
        const QString libraries = environment.value(u"LD_PRELOAD"_s); // a sanitizer's is not for sh
        environment.insert(u"LD_PRELOAD"_s, libraries.section(u' ', -1));
        const RunResult end =
            runProgram(u"" TOOLVANE_SOURCE_DIR "/tests/support/isolated"_s,
                       {u"sh"_s, u"-c"_s, u"id -un && test ~tester = \"$HOME\""_s}, environment);
        QCOMPARE(end.errors, QByteArray());
        QCOMPARE(end.output, "tester\n");
        QCOMPARE(end.status, 0);
    }

private:
    void holdsTheFile(const QString &folder, const QString &file)
    {
        QFETCH_GLOBAL(QString, name);
        QCOMPARE(filesIn(folder), QStringList(file));
        QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
        QCOMPARE(contentOf(walk.next()), name.toUtf8());
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_folder;
    QString m_source;
    QString m_file; // below the source
};

QTEST_GUILESS_MAIN(TestNames)
#include "tst_names.moc"
