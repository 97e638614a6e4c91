// The choosers, fields and indicators that pages share show what they should, and give the page a
// path of the kind that was asked for, or nothing.

#include "Chooser.h"
#include "ElapsedLabel.h"
#include "Files.h"
#include "PageControls.h"
#include "PathField.h"
#include "PathHint.h"
#include "WithoutPrivilege.h"

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

    // Before a run would show it. "@" stands for the test's folder.
    void advice_data()
    {
        QTest::addColumn<PathUse>("use");
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("advice");
        using enum PathUse;
        const auto row = [](PathUse use, const char *typed, const char *advice) {
            QTest::addRow("%d %s", int(use), typed)
                << use << QString::fromUtf8(typed) << QString::fromUtf8(advice);
        };
        row(SourceFolder, "", "");
        row(SourceFolder, "@/a folder", "");
        row(SourceFolder, "@/b.txt", "Path.NoFolder");
        row(SourceFolder, "@/none", "Path.NoSuchFolder");
        row(SourceFolder, "@/closed", "Path.Unreadable");
        row(SourceFolder, ".", "Path.Relative");
        row(SourceFile, "@/A.ZIP", "");
        row(SourceFile, "@/a folder", "Path.NoFile");
        row(SourceFile, "@/A", "Path.NoSuchFile");
        row(SourceFile, "~/none", "Path.NoSuchFile");
        row(NewFile, "@/new.zip", "");
        row(NewFile, "@/b.txt", "Path.Taken");
        row(NewFile, "@/dangling", "Path.Taken");
        row(NewFile, "@/none/new.zip", "Path.NoPlace");
        row(NewFile, "@/none/", "Path.NoPlace");
        row(NewFile, "@/closed/new.zip", "Path.Unwritable");
        row(NewFile, "new.zip", "Path.Relative");
        row(ReplacedFile, "@/b.txt", "Path.Replaced");
        row(ReplacedFile, "@/a folder", "Path.NoFile");
        row(OutputFolder, "", "Path.CurrentFolder");
        row(OutputFolder, "@/a folder", "Path.FolderTaken");
        row(OutputFolder, "@/none/below", "Path.WillBeMade");
        row(OutputFolder, "@/b.txt", "Path.NoFolder");
        row(OutputFolder, "@/closed", "Path.Unwritable");
    }

    void advice()
    {
        QFETCH(PathUse, use);
        QFETCH(QString, typed);
        QFETCH(QString, advice);
        QVERIFY(QDir(m_folder->path()).mkpath(u"a folder/A"_s));
        QVERIFY(QFile::link(u"/nowhere"_s, path(u"dangling"_s)));
        QVERIFY(QDir(m_folder->path()).mkdir(u"closed"_s)
                && QFile::setPermissions(path(u"closed"_s), {}));
        const WithoutPrivilege asOthers;
        PathQuestion question{.use = use, .path = typed.replace(u'@', m_folder->path())};
        question.path = withHomeFolder(question.path);
        if (use == PathUse::OutputFolder)
            question.made = question.path + u"/A"_s;
        QCOMPARE(pathAdvice(question, pathFacts(question)), advice);
    }

    void noRoom()
    {
        PathQuestion question{.use = PathUse::NewFile, .path = path(u"new"_s)};
        PathFacts facts = pathFacts(question);
        QVERIFY(facts.available);
        for (const auto &[needed, advice] : {std::pair(*facts.available, QString()),
                                             std::pair(*facts.available + 1, u"Path.NoRoom"_s)}) {
            question.needed = needed;
            QCOMPARE(pathAdvice(question, facts), advice);
        }
    }

    // Never while it is typed, about the last text alone, and for a screen reader, too.
    void hintFollowsTheField()
    {
        QLineEdit source(m_page);
        auto *field = new PathField(m_page);
        auto *hint = new PathHint(m_page);
        hint->show();
        hint->watch(*field, PathUse::NewFile);
        hint->setSource(source);
        const QSize room = hint->sizeHint();
        source.setText(m_folder->path());
        field->setText(path(u"b.txt"_s));
        field->setText(path(u"none/b.txt"_s));
        QVERIFY(hint->text().isEmpty()); // nothing was asked yet
        QTRY_COMPARE(hint->text(), u"Path.NoPlace"_s);
        QCOMPARE(field->accessibleDescription(), u"Path.NoPlace"_s);
        QCOMPARE(hint->sizeHint(), room); // nothing moves
        field->setText(path(u"c.txt"_s));
        QVERIFY(hint->text().isEmpty() && field->accessibleDescription().isEmpty());
        QTest::qWait(300); // it has nothing to say
        QVERIFY(hint->text().isEmpty());
        Files::write(path(u"c.txt"_s), {}); // by another program, while the user is there
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        m_window->activateWindow();
        QTRY_COMPARE(hint->text(), u"Path.Taken"_s);
        field->setText(path(u"a"_s));
        QTest::qWait(210);
        delete hint; // in the middle of it
        delete field;
    }

    void homeIsWrittenOut()
    {
        PathField field(m_page);
        field.show();
        for (const auto &[typed, whole] :
             {std::pair(u"~/a"_s, QDir::homePath() + u"/a"_s), std::pair(u"~a/b"_s, u"~a/b"_s),
              std::pair(u"/x/~/a"_s, u"/x/~/a"_s)}) {
            field.setText(typed);
            QTest::keyClick(&field, Qt::Key_Return);
            QCOMPARE(field.text(), whole);
            field.setText(typed);
            PathField::expandHomeIn(*m_page);
            QCOMPARE(field.text(), whole);
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
