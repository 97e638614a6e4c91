// The choosers, fields and indicators that pages share show what they should, and give the page a
// path of the kind that was asked for, or nothing.

#include "Chooser.h"
#include "ElapsedLabel.h"
#include "Files.h"
#include "PageControls.h"
#include "PathField.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QDropEvent>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QTemporaryDir>
#include <QTimer>

using namespace Qt::StringLiterals;
using PageControls::answerChooser;

class PageWidgetsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QCoreApplication::setOrganizationName(u"Toolvane"_s); }
    void init()
    {
        QSettings().clear();
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"a folder"_s));
        Files::write(path(u"A.ZIP"_s), {});
        Files::write(path(u"b.txt"_s), {});
        m_window = std::make_unique<QWidget>();
        m_page = new QWidget(m_window.get());
        for (const QString &chooser : {u"fileChooser"_s, u"saveChooser"_s})
            QSettings().setValue(u"RecentFolders//"_s + chooser, m_folder->path());
        m_window->show();
        m_chosen.clear();
    }
    // No sheet is left over, however it ended.
    void cleanup() { QTRY_VERIFY(!sheet()); }

    void fileOfItsKind()
    {
        Chooser::chooseFile(m_page, {u"tar"_s, u"zip"_s}, remember());
        answer(sheet(), path(u"b.txt"_s));
        QVERIFY(m_chosen.isEmpty());
        QTRY_COMPARE(m_window->findChildren<QFileDialog *>().size(), 1); // it asks again
        answer(sheet(), path(u"A.ZIP"_s));
        QCOMPARE(m_chosen, QStringList{path(u"A.ZIP"_s)});
    }

    void saveName()
    {
        for (const auto &[typed, whole] : {std::pair(u"photos.ZIP"_s, u"photos.ZIP"_s),
                                           std::pair(u"-rf ä.tar"_s, u"-rf ä.tar.zip"_s)}) {
            Chooser::chooseSaveFile(m_page, u"zip"_s, remember());
            QFileDialog *dialog = sheet();
            QVERIFY(!dialog->findChild<QWidget *>(u"newFolderButton"_s)->isEnabled());
            answer(dialog, typed);
            QCOMPARE(m_chosen.last(), path(whole));
            QTRY_VERIFY(!sheet());
        }
    }

    // Else "a.b" would replace "a.b.dmg" after no question at all.
    void asksAboutTheNameThatWillBeWritten()
    {
        const QString standing = path(u"a.b.dmg"_s);
        Files::write(standing, {});
        Chooser::chooseSaveFile(m_page, u"dmg"_s, remember());
        answer(sheet(), u"a.b"_s);
        QVERIFY(m_chosen.isEmpty());
        QTRY_COMPARE(m_window->findChildren<QFileDialog *>().size(), 1);
        QFileDialog *again = sheet();
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
        answerChooser(*m_page, "folderChooser", folder.filePath(u"one/Photos/"_s));
        QCOMPARE(m_chosen, QStringList{folder.filePath(u"one/Photos"_s)});
        Chooser::chooseFolder(m_page, remember()); // its neighbours are seen, and OK takes it again
        QCOMPARE(sheet()->directory().path(), folder.filePath(u"one"_s));
        QCOMPARE(sheet()->selectedFiles(), QStringList{folder.filePath(u"one/Photos"_s)});
        answerChooser(*m_page, "folderChooser", {});
        Chooser::chooseSaveFile(m_page, u"zip"_s, remember());
        answerChooser(*m_page, "saveChooser", folder.filePath(u"one/a.zip"_s));
        Chooser::chooseSaveFile(m_page, u"zip"_s, remember());
        QCOMPARE(sheet()->directory().path(), folder.filePath(u"one"_s));
        answerChooser(*m_page, "saveChooser", {});

        QVERIFY(QDir(folder.filePath(u"one"_s)).removeRecursively());
        Chooser::chooseFolder(m_page, remember());
        QCOMPARE(sheet()->directory().path(), QDir::homePath());
        QVERIFY(sheet()->isModal());
        answerChooser(*m_page, "folderChooser", {});
    }

    void pageDies()
    {
        int cancels = 0;
        Chooser::chooseFolder(m_page, remember(), {}, [&] { ++cancels; });
        QPointer<QFileDialog> dialog = sheet();
        delete m_page;
        QVERIFY(dialog);
        static_cast<QDialog *>(dialog)->accept();
        QTRY_VERIFY(!dialog);
        QCOMPARE(cancels, 0);
        QVERIFY(m_chosen.isEmpty());
    }

    void takesWhatFits()
    {
        using Kind = PathField::Kind;
        const QString folder = path(u"a folder"_s);
        const QString archive = path(u"A.ZIP"_s);
        const QString other = path(u"b.txt"_s);
        for (const auto &[kind, dropped, isTaken] :
             {std::tuple(Kind::Folder, folder, true), std::tuple(Kind::Folder, archive, false),
              std::tuple(Kind::File, archive, true), std::tuple(Kind::File, other, false),
              std::tuple(Kind::File, folder, false),
              std::tuple(Kind::File, path(u"c.zip"_s), false),
              std::tuple(Kind::NewFile, archive, true), std::tuple(Kind::NewFile, other, false)}) {
            PathField field;
            field.setKind(kind);
            if (kind != Kind::Folder)
                field.setSuffixes({u"zip"_s});
            field.setText(u"/before"_s);
            QCOMPARE(drop(field, {QUrl::fromLocalFile(dropped)}), isTaken);
            QCOMPARE(field.text(), isTaken ? dropped : u"/before"_s);
        }
    }

    // Also what is dropped beside it on its page.
    void refusesWhileLockedAndFromElsewhere()
    {
        QWidget page;
        PathField field(&page);
        field.takeDropsOf(page);
        const QList<QUrl> home{QUrl::fromLocalFile(QDir::homePath())};
        for (QWidget *target : {&page, static_cast<QWidget *>(&field)}) {
            QVERIFY(!drop(*target, {QUrl(u"https://example.org/a"_s)}));
            QVERIFY(!drop(*target, home + home));
            field.setReadOnly(true);
            QVERIFY(!drop(*target, home));
            field.setReadOnly(false);
            QVERIFY(drop(*target, home));
            QCOMPARE(field.text(), QDir::homePath());
        }
        field.setEnabled(false);
        QVERIFY(!drop(page, home));
    }

    void newFileInADroppedFolder()
    {
        const QList<QUrl> urls{QUrl::fromLocalFile(m_folder->path())};
        QLineEdit source;
        PathField field;
        field.setKind(PathField::Kind::NewFile);
        field.setSuffixes({u"m4v"_s});
        QVERIFY(drop(field, urls));
        QCOMPARE(field.text(), path(QDir(m_folder->path()).dirName() + u".m4v"_s));
        field.setSource(source);
        source.setText(u"."_s);
        QVERIFY(drop(field, urls));
        QCOMPARE(field.text(), path(QDir::current().dirName() + u".m4v"_s));
        source.setText(u"/elsewhere/clip.part.avi"_s);
        for (const QString &name : {u"clip.part.m4v"_s, u"clip.part 2.m4v"_s}) {
            QVERIFY(drop(field, urls));
            QCOMPARE(field.text(), path(name));
            Files::write(field.text(), {}); // the next one makes way
        }
    }

    void showsALongPathInItsToolTip()
    {
        PathField field;
        field.setText(u"/"_s + QString(4000, u'w'));
        QCOMPARE(field.toolTip(), field.text());
        field.setText(u"/<b>bold</b>"_s); // a name, no markup
        QVERIFY(field.toolTip().contains(u"&lt;b&gt;bold"_s));
    }

    // Also while its page is hidden, and until the page holds it.
    void theTimeGoesOn()
    {
        QWidget page;
        ElapsedLabel elapsed(&page);
        page.show();
        elapsed.setRunning(true);
        page.hide(); // another page is chosen
        ElapsedLabel other; // whose run is younger
        other.setRunning(true);
        QTRY_VERIFY(other.text() != u"0:00"_s);
        page.show();
        QVERIFY(elapsed.isVisible() && elapsed.text() != u"0:00"_s);
        elapsed.hold();
        const QString held = elapsed.text();
        other.setRunning(true); // from 0:00 to a time that was not held
        QTRY_VERIFY(other.text() > held);
        QVERIFY(elapsed.isVisible() && elapsed.text() == held);
        elapsed.setRunning(false);
        QVERIFY(!elapsed.isVisible());
    }

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }

    /// Whether the field took what was dropped on it.
    static bool drop(QWidget &target, const QList<QUrl> &urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&target, &enter);
        QDropEvent dropped({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&target, &dropped);
        if (enter.isAccepted() != dropped.isAccepted())
            QTest::qFail("the drag promised something else", __FILE__, __LINE__);
        return dropped.isAccepted() && dropped.dropAction() == Qt::CopyAction;
    }
    QFileDialog *sheet() const { return m_window->findChild<QFileDialog *>(); }
    static void answer(QFileDialog *sheet, const QString &typed)
    {
        auto *name = sheet->findChild<QLineEdit *>(u"fileNameEdit"_s);
        name->setText(typed);
        QTest::keyClick(name, Qt::Key_Return);
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

QTEST_MAIN(PageWidgetsTest)
#include "tst_page_widgets.moc"
