// The fields and indicators that pages share show what they should and take only what fits.

#include "BusyIndicator.h"
#include "ElapsedLabel.h"
#include "PathField.h"

#include <QAbstractAnimation>
#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QMimeData>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class PageWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir(m_folder->path()).mkdir(u"a folder"_s));
        for (const QString &name : {u"A.ZIP"_s, u"b.txt"_s})
            QVERIFY(QFile(path(name)).open(QIODevice::WriteOnly));
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
            QVERIFY(QFile(field.text()).open(QIODevice::WriteOnly)); // the next one makes way
        }
    }

    void showsALongPathInItsToolTip()
    {
        PathField field;
        const QSize before = field.sizeHint();
        field.setText(u"/"_s + QString(4000, u'w'));
        QCOMPARE(field.toolTip(), field.text());
        QCOMPARE(field.sizeHint(), before);
        field.setText(u"/<b>bold</b>"_s); // a name, no markup
        QVERIFY(field.toolTip().contains(u"&lt;b&gt;bold"_s));
    }

    void elapsedText()
    {
        QCOMPARE(ElapsedLabel::elapsedText(-1), u"0:00"_s);
        QCOMPARE(ElapsedLabel::elapsedText(3'599'999), u"59:59"_s);
        QCOMPARE(ElapsedLabel::elapsedText(3'723'000), u"1:02:03"_s);
    }

    // The style's animation would otherwise wake the processor up for nobody; the time goes on.
    void indicatorsOfAHiddenPageRest()
    {
        QApplication::setStyle(u"fusion"_s);
        QWidget page;
        QHBoxLayout row(&page);
        BusyIndicator indicator;
        ElapsedLabel elapsed;
        row.addWidget(&indicator);
        row.addWidget(&elapsed);
        connect(&indicator, &BusyIndicator::animatingChanged, &elapsed, &ElapsedLabel::setRunning);
        const auto moves = [&] { return indicator.findChild<QAbstractAnimation *>() != nullptr; };
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        indicator.startAnimation();
        indicator.startAnimation();
        QTRY_VERIFY(moves());
        QCOMPARE(elapsed.text(), u"0:00"_s);
        page.hide(); // another page is chosen
        QTRY_VERIFY(!moves());
        QTest::qWait(1000);
        page.show();
        QTRY_VERIFY(moves());
        QVERIFY(elapsed.isVisible() && elapsed.text() != u"0:00"_s);
        elapsed.hold(); // while the page tells the end
        const QString held = elapsed.text();
        QTest::qWait(1100);
        QVERIFY(elapsed.isVisible() && elapsed.text() == held);
        indicator.stopAnimation();
        QTRY_VERIFY(!moves());
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
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_MAIN(PageWidgets)
#include "tst_page_widgets.moc"
