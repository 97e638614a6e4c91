// Every chooser gives the page a path of the kind that was asked for, or nothing.

#include "Chooser.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
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
    void init();
    void cleanup();
    void folder();
    void cancelled();
    void fileOfItsKind();
    void saveName_data();
    void saveName();
    void asksAboutTheNameThatWillBeWritten();
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

void ChooserTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_window = std::make_unique<QWidget>();
    m_page = new QWidget(m_window.get());
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
    Chooser::chooseFile(m_page, {u"tar"_s, u"zip"_s}, remember(), m_folder->path());
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
    Chooser::chooseSaveFile(m_page, u"zip"_s, remember(), m_folder->path());
    QFileDialog *dialog = sheet(u"saveChooser"_s);
    QVERIFY(!dialog->findChild<QWidget *>(u"newFolderButton"_s)->isEnabled());
    answer(dialog, QString::fromUtf8(QTest::currentDataTag()));
    QCOMPARE(m_chosen, QStringList{m_folder->filePath(expected)});
}

// Else "a.b" would replace "a.b.dmg" after no question at all.
void ChooserTest::asksAboutTheNameThatWillBeWritten()
{
    const QString standing = makeFile(u"a.b.dmg"_s);
    Chooser::chooseSaveFile(m_page, u"dmg"_s, remember(), m_folder->path());
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
