// Every chooser gives the page a path of the kind that was asked for, or nothing, and starts where
// it was last used.

#include "Chooser.h"
#include "PageControls.h"
#include "RecentFolder.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QMessageBox>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

#include <memory>

using namespace Qt::StringLiterals;
using PageControls::answerChooser;

class ChooserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(u"Toolvane"_s);
        QCoreApplication::setApplicationName(u"Toolvane"_s);
    }

    void init()
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
    void cleanup()
    {
        QTRY_VERIFY(!m_window->findChild<QFileDialog *>());
        m_window.reset();
    }

    void folderOrNothing()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(u"ein Ordner"_s));
        int cancels = 0;
        Chooser::chooseFolder(m_page, remember(), m_folder->path(), [&] { ++cancels; });
        QCOMPARE(sheet(u"folderChooser"_s)->windowModality(), Qt::WindowModal);
        QCOMPARE(sheet(u"folderChooser"_s)->directory().path(), m_folder->path());
        answer(sheet(u"folderChooser"_s), m_folder->filePath(u"ein Ordner/"_s));
        QCOMPARE(m_chosen, QStringList{m_folder->filePath(u"ein Ordner"_s)});
        QTRY_VERIFY(!sheet(u"folderChooser"_s));
        Chooser::chooseFolder(m_page, remember(), u"/nonexistent"_s, [&] { ++cancels; });
        answerChooser(*m_page, "folderChooser", {});
        QCOMPARE(cancels, 1);
        QCOMPARE(m_chosen.size(), 1);
    }

    void fileOfItsKind()
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

    void saveName()
    {
        QStringList expected;
        for (const auto &[typed, whole] : {std::pair(u"photos.ZIP"_s, u"photos.ZIP"_s),
                                           std::pair(u"-rf ä.tar"_s, u"-rf ä.tar.zip"_s)}) {
            Chooser::chooseSaveFile(m_page, u"zip"_s, remember());
            QFileDialog *dialog = sheet(u"saveChooser"_s);
            QVERIFY(!dialog->findChild<QWidget *>(u"newFolderButton"_s)->isEnabled());
            answer(dialog, typed);
            QCOMPARE(m_chosen, expected << m_folder->filePath(whole));
            QTRY_VERIFY(!sheet(u"saveChooser"_s));
        }
    }

    // Else "a.b" would replace "a.b.dmg" after no question at all.
    void asksAboutTheNameThatWillBeWritten()
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

    void startsWhereItWasUsed()
    {
        const QDir folder(m_folder->path());
        QVERIFY(folder.mkpath(u"one/Photos"_s));
        Chooser::chooseFolder(m_page, remember());
        answerChooser(*m_page, "folderChooser", folder.filePath(u"one/Photos"_s));
        Chooser::chooseFolder(m_page, remember()); // its neighbours are seen, and OK takes it again
        QCOMPARE(sheet(u"folderChooser"_s)->directory().path(), folder.filePath(u"one"_s));
        QCOMPARE(sheet(u"folderChooser"_s)->selectedFiles(),
                 QStringList{folder.filePath(u"one/Photos"_s)});
        answerChooser(*m_page, "folderChooser", {});
        Chooser::chooseSaveFile(m_page, u"zip"_s, remember());
        answerChooser(*m_page, "saveChooser", folder.filePath(u"one/a.zip"_s));
        Chooser::chooseSaveFile(m_page, u"zip"_s, remember());
        QCOMPARE(sheet(u"saveChooser"_s)->directory().path(), folder.filePath(u"one"_s));
        answerChooser(*m_page, "saveChooser", {});

        QVERIFY(QDir(folder.filePath(u"one"_s)).removeRecursively());
        Chooser::chooseFolder(m_page, remember());
        QCOMPARE(sheet(u"folderChooser"_s)->directory().path(), QDir::homePath());
        answerChooser(*m_page, "folderChooser", {});
        QSettings().clear();
        Chooser::chooseSaveFile(m_page, u"aiff"_s, remember()); // there is no folder for music
        QCOMPARE(sheet(u"saveChooser"_s)->directory(), QDir::home());
        sheet(u"saveChooser"_s)->reject();
    }

    void pageDies()
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

QTEST_MAIN(ChooserTest)
#include "tst_chooser.moc"
