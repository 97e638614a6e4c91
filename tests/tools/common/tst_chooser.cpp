// Every chooser gives the page a path of the kind that was asked for, or nothing, and starts where
// it was last used.

#include "Chooser.h"
#include "RecentFolder.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;

class ChooserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void folder();
    void cancelled();
    void fileOfItsKind();
    void saveName_data();
    void saveName();
    void asksAboutTheNameThatWillBeWritten();
    void startsWhereItWasUsed();
    void startsInTheUsualFolder_data();
    void startsInTheUsualFolder();
    void proposesANameLikeTheSource();
    void pageDies();

private:
    QFileDialog *sheet(const QString &name) const
    {
        return m_window->findChild<QFileDialog *>(name);
    }
    static void answer(QFileDialog *sheet, const QString &typed)
    {
        auto *name = sheet->findChild<QLineEdit *>(u"fileNameEdit"_s);
        name->setText(typed);
        QTest::keyClick(name, Qt::Key_Return);
    }
    QString makeFile(const QString &name) const
    {
        QFile file(m_folder->filePath(name));
        return file.open(QIODevice::WriteOnly) ? file.fileName() : QString();
    }
    Chooser::Chosen remember()
    {
        return [this](const QString &path) { m_chosen << path; };
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<QWidget> m_window;
    QWidget *m_page = nullptr;
    QStringList m_chosen;
};

void ChooserTest::initTestCase()
{
    QCoreApplication::setOrganizationName(u"Toolvane"_s);
    QCoreApplication::setApplicationName(u"Toolvane"_s);
}

void ChooserTest::init()
{
    QSettings().clear();
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<QWidget>();
    m_page = new QWidget(m_window.get());
    m_page->setObjectName(u"Page"_s);
    for (const QString &chooser : {u"fileChooser"_s, u"saveChooser"_s})
        RecentFolder::remember(*m_page, chooser, m_folder->path());
    m_window->show();
    m_chosen.clear();
}

// No sheet is left over, however it ended.
void ChooserTest::cleanup()
{
    QTRY_VERIFY(!m_window->findChild<QFileDialog *>());
    m_window.reset();
}

void ChooserTest::folder()
{
    QVERIFY(QDir(m_folder->path()).mkdir(u"ein Ordner"_s));
    makeFile(u"file"_s);
    Chooser::chooseFolder(m_page, remember(), m_folder->path());
    QFileDialog *dialog = sheet(u"folderChooser"_s);
    QVERIFY(dialog);
    QCOMPARE(dialog->windowModality(), Qt::WindowModal);
    QCOMPARE(dialog->directory().path(), m_folder->path());
    answer(dialog, m_folder->filePath(u"ein Ordner/"_s));
    QCOMPARE(m_chosen, QStringList{m_folder->filePath(u"ein Ordner"_s)});
}

void ChooserTest::cancelled()
{
    int times = 0;
    Chooser::chooseFolder(m_page, remember(), u"/nonexistent"_s, [&] { ++times; });
    QTest::keyClick(sheet(u"folderChooser"_s), Qt::Key_Escape);
    QCOMPARE(times, 1);
    Chooser::chooseSaveFile(m_page, u"zip"_s, remember());
    QTest::keyClick(sheet(u"saveChooser"_s), Qt::Key_Escape);
    QVERIFY(m_chosen.isEmpty());
}

void ChooserTest::fileOfItsKind()
{
    const QString other = makeFile(u"notes.txt"_s);
    const QString upper = makeFile(u"PHOTOS.ZIP"_s);
    Chooser::chooseFile(m_page, {u"tar"_s, u"zip"_s}, remember());
    answer(sheet(u"fileChooser"_s), other);
    QVERIFY(m_chosen.isEmpty());
    QTRY_COMPARE(m_window->findChildren<QFileDialog *>().size(), 1); // it asks again
    answer(sheet(u"fileChooser"_s), upper);
    QCOMPARE(m_chosen, QStringList{upper});
}

void ChooserTest::saveName_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("photos") << u"photos.zip"_s;
    QTest::newRow("photos.zip") << u"photos.zip"_s;
    QTest::newRow("photos.ZIP") << u"photos.ZIP"_s;
    QTest::newRow("photos.2024") << u"photos.2024.zip"_s;
    QTest::newRow("-rf ä.tar") << u"-rf ä.tar.zip"_s;
}

void ChooserTest::saveName()
{
    QFETCH(QString, expected);
    Chooser::chooseSaveFile(m_page, u"zip"_s, remember());
    QFileDialog *dialog = sheet(u"saveChooser"_s);
    QVERIFY(!dialog->findChild<QWidget *>(u"newFolderButton"_s)->isEnabled());
    answer(dialog, QString::fromUtf8(QTest::currentDataTag()));
    QCOMPARE(m_chosen, QStringList{m_folder->filePath(expected)});
}

// Else "a.b" would replace "a.b.dmg" after no question at all.
void ChooserTest::asksAboutTheNameThatWillBeWritten()
{
    const QString standing = makeFile(u"a.b.dmg"_s);
    Chooser::chooseSaveFile(m_page, u"dmg"_s, remember());
    answer(sheet(u"saveChooser"_s), u"a.b"_s);
    QVERIFY(m_chosen.isEmpty());
    QTRY_COMPARE(m_window->findChildren<QFileDialog *>().size(), 1);
    QFileDialog *again = sheet(u"saveChooser"_s);
    QCOMPARE(again->selectedFiles(), QStringList{standing});

    bool asked = false;
    QTimer::singleShot(0, this, [&] {
        auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        asked = question != nullptr;
        if (question)
            question->button(QMessageBox::Yes)->click();
    });
    again->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    QVERIFY(asked);
    QCOMPARE(m_chosen, QStringList{standing});
}

void ChooserTest::startsWhereItWasUsed()
{
    const QDir folder(m_folder->path());
    QVERIFY(folder.mkpath(u"one/Photos"_s) && folder.mkpath(u"two"_s));
    Chooser::chooseFolder(m_page, remember());
    answer(sheet(u"folderChooser"_s), folder.filePath(u"one/Photos"_s));
    QTRY_VERIFY(!sheet(u"folderChooser"_s));
    Chooser::chooseSaveFile(m_page, u"zip"_s, remember());
    answer(sheet(u"saveChooser"_s), folder.filePath(u"two/a.zip"_s));
    QTRY_VERIFY(!sheet(u"saveChooser"_s));

    Chooser::chooseSaveFile(m_page, u"zip"_s, remember());
    QCOMPARE(sheet(u"saveChooser"_s)->directory().path(), folder.filePath(u"two"_s));
    sheet(u"saveChooser"_s)->reject();
    QTRY_VERIFY(!sheet(u"saveChooser"_s));
    Chooser::chooseFolder(m_page, remember()); // its neighbours are seen, and OK takes it again
    QFileDialog *folders = sheet(u"folderChooser"_s);
    QCOMPARE(folders->directory().path(), folder.filePath(u"one"_s));
    QCOMPARE(folders->selectedFiles(), QStringList{folder.filePath(u"one/Photos"_s)});
    folders->reject();
    QTRY_VERIFY(!sheet(u"folderChooser"_s));

    QVERIFY(QDir(folder.filePath(u"one"_s)).removeRecursively());
    Chooser::chooseFolder(m_page, remember());
    QCOMPARE(sheet(u"folderChooser"_s)->directory().path(), QDir::homePath());
    sheet(u"folderChooser"_s)->reject();
    QTRY_VERIFY(!sheet(u"folderChooser"_s));
    Chooser::chooseFolder(m_page, remember(), m_folder->path()); // which is no use of the page's
    answer(sheet(u"folderChooser"_s), folder.filePath(u"two"_s));
    QCOMPARE(RecentFolder::find(*m_page, u"folderChooser"_s), QString());
}

void ChooserTest::startsInTheUsualFolder_data()
{
    QTest::addColumn<QString>("chooser");
    QTest::addColumn<QString>("suffix");
    QTest::addColumn<QString>("folder");
    QTest::newRow("archive to unpack") << u"fileChooser"_s << u"zip"_s << u"Downloads"_s;
    QTest::newRow("video") << u"fileChooser"_s << u"m4v"_s << u"Videos"_s;
    QTest::newRow("new archive") << u"saveChooser"_s << u"zip"_s << u"Documents"_s;
    QTest::newRow("no such folder") << u"saveChooser"_s << u"aiff"_s << QString();
}

void ChooserTest::startsInTheUsualFolder()
{
    QFETCH(QString, chooser);
    QFETCH(QString, suffix);
    QFETCH(QString, folder);
    QSettings().clear();
    QVERIFY(folder.isEmpty() || QDir::home().mkpath(folder));
    if (chooser == "fileChooser"_L1)
        Chooser::chooseFile(m_page, {suffix}, remember());
    else
        Chooser::chooseSaveFile(m_page, suffix, remember());
    QCOMPARE(sheet(chooser)->directory().path(),
             QDir::cleanPath(QDir::home().absoluteFilePath(folder)));
    sheet(chooser)->reject();
}

void ChooserTest::proposesANameLikeTheSource()
{
    QSettings().clear();
    const QDir folder(m_folder->path());
    QVERIFY(folder.mkpath(u"Photos 2.0"_s));
    makeFile(u"Photos 2.0.zip"_s);
    Chooser::chooseSaveFile(m_page, u"zip"_s, remember(), folder.filePath(u"Photos 2.0"_s));
    QFileDialog *beside = sheet(u"saveChooser"_s);
    QCOMPARE(beside->selectedFiles(), QStringList{folder.filePath(u"Photos 2.0 2.zip"_s)});
    beside->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save)->click();
    QCOMPARE(m_chosen, QStringList{folder.filePath(u"Photos 2.0 2.zip"_s)});
}

void ChooserTest::pageDies()
{
    int cancels = 0;
    Chooser::chooseFolder(m_page, remember(), {}, [&] { ++cancels; });
    QPointer<QFileDialog> dialog = sheet(u"folderChooser"_s);
    delete m_page;
    QVERIFY(dialog);
    static_cast<QDialog *>(dialog)->accept();
    QTRY_VERIFY(!dialog);
    QCOMPARE(cancels, 0);
    QVERIFY(m_chosen.isEmpty());
}

QTEST_MAIN(ChooserTest)
#include "tst_chooser.moc"
