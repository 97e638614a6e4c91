// No archive makes the Unzip page write anything outside the new folder.

#include "MessageBoxes.h"
#include "PageControls.h"
#include "UNZIPViewController.h"
#include "ZipWriter.h"

#include <QDirIterator>
#include <QTemporaryDir>

using namespace PageControls;
using namespace Qt::StringLiterals;

class HostileArchivesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // "@" in names and targets stands for the folder that must stay as it is.
    void staysInside_data()
    {
        QTest::addColumn<QByteArray>("kinds");
        QTest::addColumn<QByteArrayList>("names");
        QTest::addColumn<QByteArrayList>("contents");
        QTest::addColumn<QString>("unpackedInside");
        const auto row = [](const char *what, const char *kinds, const QByteArrayList &names,
                            const QByteArrayList &contents, const QString &inside) {
            QTest::newRow(what) << QByteArray(kinds) << names << contents << inside;
        };
        row("parent folders", "ff", {"../../outside/new", "a/../../../outside/new"}, {"x", "x"},
            u"outside/new"_s);
        row("absolute name", "ff", {"@/new", "/@/new2"}, {"x", "x"}, u"@/new"_s);
        row("backslashes", "f", {"..\\..\\outside\\new"}, {"x"}, u"..\\..\\outside\\new"_s);
        row("through a link to a folder", "lff", {"l", "l/new", "l/victim"}, {"@", "x", "x"},
            u"l"_s);
        row("new folder through a link", "ldf", {"l", "l/new/", "l/new/f"}, {"@", "", "x"}, u"l"_s);
        row("through a link to the parent", "lf", {"l", "l/new"}, {"..", "x"}, u"l"_s);
        row("over a link to a file", "lf", {"l", "l"}, {"@/victim", "x"}, u"l"_s);
        row("link in place of a folder", "dlf", {"l/", "l", "l/new"}, {"", "@", "x"}, u"l/new"_s);
        row("link through a link", "ll", {"l", "l/new"}, {"@", "/etc/passwd"}, u"l"_s);
        row("link whose name is the folder", "lf", {".", "new"}, {"@", "x"}, u"new"_s);
        row("link with parent folders in its name", "llf", {"a/../l", "l", "l/new"},
            {"@", "@", "x"}, u"l"_s);
    }

    void staysInside()
    {
        QFETCH(QByteArray, kinds);
        QFETCH(QByteArrayList, names);
        QFETCH(QByteArrayList, contents);
        QFETCH(QString, unpackedInside);
        const QTemporaryDir folder;
        const QByteArray outside = QFile::encodeName(folder.filePath(u"outside"_s));
        QVERIFY(QDir(folder.path()).mkdir(u"outside"_s) && QDir(folder.path()).mkdir(u"out"_s));
        QFile victim(folder.filePath(u"outside/victim"_s));
        QVERIFY(victim.open(QIODevice::WriteOnly) && victim.write("as it was") > 0);
        victim.close();

        ZipWriter writer;
        for (qsizetype i = 0; i < kinds.size(); ++i) {
            const QByteArray name = names[i].replace("@", outside);
            const QByteArray content = contents[i].replace("@", outside);
            if (kinds[i] == 'l')
                writer.addLink(name, content);
            else if (kinds[i] == 'd')
                writer.addFolder(name);
            else
                writer.addFile(name, content);
        }
        QFile archive(folder.filePath(u"hostile.zip"_s));
        QVERIFY(archive.open(QIODevice::WriteOnly));
        archive.write(writer.archive());
        archive.close();
        const QStringList before = itemsOutside(folder.path());

        JobList jobs;
        MessageBoxes boxes;
        UNZIPViewController page(jobs);
        page.show();
        fill(page, "srcFolderField", archive.fileName());
        fill(page, "outputField", folder.filePath(u"out"_s));
        press(page, "generateButton");
        QTRY_COMPARE(boxes.texts.size(), 1);
        QCOMPARE(itemsOutside(folder.path()), before);
        // The archive was read at all: what could be unpacked safely was.
        const QString inside = folder.filePath(u"out/hostile/"_s)
            + unpackedInside.replace(u'@', QFile::decodeName(outside));
        QVERIFY2(QFileInfo::exists(inside), qPrintable(inside));
    }

private:
    /// Every item below the folder and what it holds, but nothing of the new folder.
    static QStringList itemsOutside(const QString &folder)
    {
        QStringList items;
        QDirIterator walk(folder,
                          QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                          QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            QFile file(walk.next());
            if (file.fileName().startsWith(folder + "/out/hostile"_L1))
                continue;
            const bool isFile = walk.fileInfo().isFile() && file.open(QIODevice::ReadOnly);
            items << file.fileName() + u'='
                    + (isFile ? QString::fromUtf8(file.readAll()) : QString());
        }
        items.sort();
        return items;
    }
};

QTEST_MAIN(HostileArchivesTest)
#include "tst_hostile_archives.moc"
