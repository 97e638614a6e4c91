// The Unzip page checks its form, unpacks with the system's program and says how it went.

#include "MessageBoxes.h"
#include "PageControls.h"
#include "RecordedProgram.h"
#include "UNZIPViewController.h"
#include "UnzipCommand.h"
#include "ZipWriter.h"

#include <QDir>
#include <QTemporaryDir>

using namespace PageControls;
using namespace Qt::StringLiterals;

static const QStringList buttons{u"srcSelectButton"_s, u"outputSelectButton"_s, u"clearButton"_s,
                                 u"generateButton"_s};

class UnzipPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_boxes = std::make_unique<MessageBoxes>();
        m_page = std::make_unique<UNZIPViewController>(m_jobs);
        m_page->show();
    }

    // The new folder is named after the archive, less four characters, whatever they are.
    void command()
    {
        const Command extract = UnzipCommand::extract(u"/a/photos.zip"_s, u"/b/photos"_s);
        QCOMPARE(extract.launchPath, u"/usr/bin/unzip"_s);
        QCOMPARE(extract.arguments.join(u'|'), u"-q|/a/photos.zip|-d|/b/photos"_s);
        QVERIFY(!extract.workingDirectory);
        for (const auto &[archive, folder, expected] :
             {std::tuple(u"/a/photos.zip"_s, u"/b"_s, u"/b/photos"_s),
              std::tuple(u"/a/photos.zip"_s, u"/"_s, u"/photos"_s),
              std::tuple(u"/a/book.epub"_s, u"/b"_s, u"/b/book."_s),
              std::tuple(u"/a/photos"_s, u"/b/"_s, u"/b/ph"_s),
              std::tuple(u"photos.zip"_s, QString(), u"photos"_s),
              std::tuple(u"/a/.zip"_s, u"/b"_s, u"/b/"_s)})
            QCOMPARE(UnzipCommand::destination(archive, folder), std::optional(expected));
        QVERIFY(!UnzipCommand::destination(u"/a folder/zip"_s, u"/b"_s));
        QVERIFY(!UnzipCommand::destination({}, u"/b"_s));
    }

    void tooShortNameIsRefusedSilently()
    {
        run(path(u"zip"_s), path(u"out"_s));
        QVERIFY(m_jobs.isEmpty());
        QVERIFY(m_boxes->texts.isEmpty());
        QCOMPARE(enabledOf(*m_page, buttons), buttons);
    }

    // A dangling link has the name as well: unzip would write through it.
    void takenNameIsRefused()
    {
        write(u"photos.zip"_s, archive());
        QVERIFY(QFile::link(path(u"elsewhere"_s), path(u"photos"_s)));
        run(path(u"photos.zip"_s), m_folder->path());
        QCOMPARE(m_boxes->texts, QStringList{u"[OutputFolderExists]"_s});
        QVERIFY(m_jobs.isEmpty());
        QVERIFY(!QFileInfo::exists(path(u"elsewhere"_s)));
    }

    void unpacks()
    {
        write(u"photos.zip"_s, archive());
        QStringList enabledBehindTheBox{u"not shown"_s};
        m_boxes->whileShown = [&] { enabledBehindTheBox = enabledOf(*m_page, buttons); };
        auto &indicator = control<QWidget>(*m_page, "progressIndicator");
        run(path(u"photos.zip"_s), path(u"new/below"_s));
        QCOMPARE(enabledOf(*m_page, buttons), QStringList());
        QVERIFY(indicator.isVisible());
        QVERIFY(control<QWidget>(*m_page, "openButton").isEnabled());
        QVERIFY(!control<QLineEdit>(*m_page, "outputField").isReadOnly());
        QCOMPARE(m_jobs.running().front().description.page, u"UNZIPViewController"_s);

        QTRY_COMPARE(m_boxes->texts, QStringList{u"[UnzipSuc]"_s});
        QCOMPARE(enabledBehindTheBox, QStringList()); // idle only after it
        QCOMPARE(enabledOf(*m_page, buttons), buttons);
        QVERIFY(!indicator.isVisible());
        QCOMPARE(content(u"new/below/photos/packed file"_s), "content");

        press(*m_page, "generateButton"); // the folder is there now
        QCOMPARE(m_boxes->texts.last(), u"[OutputFolderExists]"_s);
        press(*m_page, "clearButton");
        QCOMPARE(text(*m_page, "srcFolderField") + text(*m_page, "outputField"), QString());
    }

    void unpacksBelowTheCurrentFolder()
    {
        write(u"photos.zip"_s, archive());
        const QString before = QDir::currentPath();
        QDir::setCurrent(m_folder->path());
        run(path(u"photos.zip"_s), QString());
        QDir::setCurrent(before);
        QTRY_COMPARE(m_boxes->texts, QStringList{u"[UnzipSuc]"_s});
        QCOMPARE(content(u"photos/packed file"_s), "content");
    }

    void failedRun_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("no archive at all") << u"missing.zip"_s;
        QTest::newRow("no bytes") << u"empty.zip"_s;
        QTest::newRow("cut short") << u"cut.zip"_s;
        QTest::newRow("wants a password") << u"secret.zip"_s;
    }

    void failedRun()
    {
        QFETCH(QString, name);
        ZipWriter secret;
        secret.addSecret("packed file");
        write(u"cut.zip"_s, archive().first(60));
        write(u"empty.zip"_s, {});
        write(u"secret.zip"_s, secret.archive());
        run(path(name), path(u"out"_s));
        QTRY_COMPARE(m_boxes->texts, QStringList{u"[UnzipFail]"_s});
        QCOMPARE(enabledOf(*m_page, buttons), buttons);
        QVERIFY(QFileInfo(path(u"out/"_s + name.chopped(4))).isDir()); // stays
    }

    // Its arguments are longer than the system passes on.
    void programThatCannotStartLeavesThePageWorking()
    {
        control<QLineEdit>(*m_page, "srcFolderField").setMaxLength(200'000);
        run(u'/' + QString(150'000, u'x') + u"/photos.zip"_s, m_folder->path());
        QTRY_VERIFY(m_jobs.isEmpty());
        QTest::qWait(50); // for a message that must not come
        QVERIFY(m_boxes->texts.isEmpty());
        QCOMPARE(enabledOf(*m_page, buttons), QStringList());
        QVERIFY(control<QWidget>(*m_page, "progressIndicator").isVisible());
    }

    void showsTheOutputFolder()
    {
        RecordedProgram open("open");
        open.endWith(1);
        fill(*m_page, "outputField", u"/the output"_s);
        press(*m_page, "openButton");
        QCOMPARE(enabledOf(*m_page, buttons), buttons);
        QTRY_VERIFY(open.arguments());
        QCOMPARE(open.arguments()->join(u'|'), u"-a|Finder|/the output"_s);
        QVERIFY(m_jobs.isEmpty()); // the page is not at work
        fill(*m_page, "outputField", {});
        press(*m_page, "openButton"); // an empty folder is passed, too
        QTRY_COMPARE(open.arguments()->join(u'|'), u"-a|Finder|"_s);
        QVERIFY(m_boxes->texts.isEmpty());
    }

    void choosersFillTheForm()
    {
        write(u"photos.zip"_s, archive());
        press(*m_page, "srcSelectButton");
        answerChooser(*m_page, "fileChooser", path(u"photos.zip"_s));
        QCOMPARE(text(*m_page, "srcFolderField"), path(u"photos.zip"_s));
        press(*m_page, "outputSelectButton");
        answerChooser(*m_page, "folderChooser", m_folder->path());
        QCOMPARE(text(*m_page, "outputField"), m_folder->path());
    }

    void returnRunsTheMainAction()
    {
        fill(*m_page, "outputField", path(u"out"_s));
        QTest::keyClick(&control<QLineEdit>(*m_page, "outputField"), Qt::Key_Return);
        QCOMPARE(m_boxes->texts, QStringList{u"[SrcFolderNull]"_s});
        QVERIFY(m_jobs.isEmpty());
        QVERIFY(!QFileInfo::exists(path(u"out"_s)));
        control<QWidget>(*m_page, "generateButton").setEnabled(false);
        QTest::keyClick(&control<QLineEdit>(*m_page, "outputField"), Qt::Key_Return);
        QCOMPARE(m_boxes->texts.size(), 1);
    }

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    /// An archive of one file.
    static QByteArray archive()
    {
        ZipWriter writer;
        writer.addFile("packed file", "content");
        return writer.archive();
    }

    void run(const QString &archive, const QString &outputFolder)
    {
        fill(*m_page, "srcFolderField", archive);
        fill(*m_page, "outputField", outputFolder);
        press(*m_page, "generateButton");
    }

    QByteArray content(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }

    MarkedTexts m_texts;
    JobList m_jobs;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<MessageBoxes> m_boxes;
    std::unique_ptr<UNZIPViewController> m_page;
};

QTEST_MAIN(UnzipPageTest)
#include "tst_unzip_page.moc"
