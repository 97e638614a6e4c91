// The Unzip page unpacks into a new folder named after the archive, and no archive makes it write
// anything outside that folder.

#include "Files.h"
#include "JobList.h"
#include "MessageBoxes.h"
#include "PageControls.h"
#include "SampleTree.h"
#include "UNZIPViewController.h"
#include "UnzipCommand.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

using namespace PageControls;
using namespace Qt::StringLiterals;

class UnzipPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The sanitizers have no business in the system's programs.
    void initTestCase() { qunsetenv("LD_PRELOAD"); }
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_boxes = std::make_unique<MessageBoxes>();
        m_page = std::make_unique<UNZIPViewController>(m_jobs);
        m_page->show();
    }

    // After the archive, less four characters, whatever they are.
    void namesTheNewFolder()
    {
        for (const auto &[archive, folder, expected] :
             {std::tuple(u"/a/photos.zip"_s, u"/"_s, u"/photos"_s),
              std::tuple(u"/a/book.epub"_s, u"/b/"_s, u"/b/book."_s),
              std::tuple(u"photos.zip"_s, QString(), u"photos"_s),
              std::tuple(u"/a/.zip"_s, u"/b"_s, u"/b/"_s)})
            QCOMPARE(UnzipCommand::destination(archive, folder), std::optional(expected));
        QVERIFY(!UnzipCommand::destination(u"/a folder/zip"_s, u"/b"_s));
        run(path(u"zip"_s));
        QVERIFY(m_jobs.isEmpty() && m_boxes->texts.isEmpty()); // refused without a word
    }

    // A dangling link has the name as well: unzip would write through it.
    void unpacksIntoANewFolderOnly()
    {
        const QString archive = makeArchive(u"photos.zip"_s, {u"f"_s, u"file"_s, u"content"_s});
        run(archive);
        QTRY_COMPARE(m_boxes->texts, QStringList{u"UnzipSuc"_s});
        QCOMPARE(Files::read(path(u"out/photos/file"_s)), "content");
        QTRY_VERIFY(isIdle());
        run(archive);
        QCOMPARE(m_boxes->texts.last(), u"OutputFolderExists"_s);
        QVERIFY(QDir(path(u"out/photos"_s)).removeRecursively());
        QVERIFY(QFile::link(path(u"elsewhere"_s), path(u"out/photos"_s)));
        run(archive);
        QCOMPARE(m_boxes->texts.size(), 3);
        QVERIFY(m_jobs.isEmpty() && !QFileInfo::exists(path(u"elsewhere"_s)));
    }

    void tellsFailures()
    {
        const QString cut = makeArchive(u"cut.zip"_s, {u"f"_s, u"file"_s, QString(1000, u'x')});
        QVERIFY(QFile::resize(cut, 500));
        const QString secret = makeArchive(u"secret.zip"_s, {u"s"_s, u"file"_s, QString(20, u'x')});
        for (const QString &archive : {path(u"missing.zip"_s), cut, secret}) {
            m_boxes->texts.clear();
            run(archive);
            QTRY_COMPARE(m_boxes->texts, QStringList{u"UnzipFail"_s});
            QTRY_VERIFY(isIdle());
        }
        QVERIFY(QFileInfo(path(u"out/cut"_s)).isDir()); // stays
    }

    // "@" in names and targets stands for the folder that must stay as it is.
    void staysInside()
    {
        // Kind, name and content of each entry but the last, a file "good", and what of it all is
        // unpacked inside.
        for (auto [entries, unpacked] :
             {std::pair(u"f|../../outside/new|x|f|a/../../../outside/new|x"_s, u"good"_s),
              std::pair(u"f|@/new|x|f|/@/new2|x"_s, u"good"_s),
              std::pair(u"f|..\\..\\outside\\new|x"_s, u"..\\..\\outside\\new"_s),
              std::pair(u"l|l|@|f|l/new|x|f|l/victim|x"_s, u"good"_s), // through links
              std::pair(u"l|l|@|d|l/new/||f|l/new/f|x"_s, u"good"_s),
              std::pair(u"l|l|@/victim|f|l|x"_s, u"good"_s),
              std::pair(u"d|l/||l|l|@|f|l/new|x"_s, u"l/new"_s),
              std::pair(u"l|.|@|f|new|x"_s, u"new"_s), // the link is the folder itself
              std::pair(u"l|a/../l|@|l|l|@|f|l/new|x"_s, u"good"_s)}) {
            init();
            const QString outside = path(u"outside"_s);
            SampleTree::makeFile(QFile::encodeName(outside) + "/victim", "as it was");
            QVERIFY(QDir().mkpath(path(u"out"_s)));
            const QString archive = makeArchive(
                u"hostile.zip"_s, (entries.replace(u'@', outside) + u"|f|good|x"_s).split(u'|'));
            const SampleTree::Snapshot before = itemsOutside();
            run(archive);
            QTRY_COMPARE(m_boxes->texts.size(), 1);
            QCOMPARE(SampleTree::difference(before, itemsOutside()), QList<QByteArray>());
            // The archive was read at all: what could be unpacked safely was.
            const QString inside = path(u"out/hostile/"_s + unpacked);
            QVERIFY2(QFileInfo::exists(inside), qPrintable(inside));
        }
    }

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    bool isIdle() const { return control<QWidget>(*m_page, "generateButton").isEnabled(); }
    QString makeArchive(const QString &name, const QStringList &entries) const
    {
        const QString script =
            QStringLiteral(TOOLVANE_SOURCE_DIR "/tests/tools/unzip/write_zip.py");
        if (QProcess::execute(script, QStringList{path(name)} + entries) != 0)
            qFatal("no archive was written");
        return path(name);
    }
    void run(const QString &archive) const
    {
        fill(*m_page, "srcFolderField", archive);
        fill(*m_page, "outputField", path(u"out"_s));
        press(*m_page, "generateButton");
    }
    /// Everything but the new folder.
    SampleTree::Snapshot itemsOutside() const
    {
        SampleTree::Snapshot items = SampleTree::snapshot(QFile::encodeName(m_folder->path()));
        items.removeIf([](auto item) { return item.key().startsWith("/out/hostile"); });
        return items;
    }

    JobList m_jobs;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MessageBoxes> m_boxes;
    std::unique_ptr<UNZIPViewController> m_page;
};

QTEST_MAIN(UnzipPageTest)
#include "tst_unzip_page.moc"
