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
#include <QProxyStyle>
#include <QSignalSpy>
#include <QStyleOption>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class PageWidgets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drops_data()
    {
        using Kind = PathField::Kind;
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("suffix"); // none: any
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<bool>("taken");
        const auto row = [](const char *what, Kind kind, const QString &suffix,
                            const QStringList &names, bool taken) {
            QTest::newRow(what) << kind << suffix << names << taken;
        };
        row("folder", Kind::Folder, {}, {u"a folder"_s}, true);
        row("no folder", Kind::Folder, {}, {u"A.ZIP"_s}, false);
        row("file", Kind::File, u"zip"_s, {u"A.ZIP"_s}, true);
        row("other file", Kind::File, u"zip"_s, {u"b.txt"_s}, false);
        row("no file", Kind::File, {}, {u"a folder"_s}, false);
        row("gone", Kind::File, u"zip"_s, {u"gone.zip"_s}, false);
        row("file to replace", Kind::NewFile, u"zip"_s, {u"A.ZIP"_s}, true);
        row("new file, other kind", Kind::NewFile, u"zip"_s, {u"b.txt"_s}, false);
        row("two", Kind::File, {}, {u"A.ZIP"_s, u"b.txt"_s}, false);
    }

    void drops()
    {
        QFETCH(PathField::Kind, kind);
        QFETCH(QString, suffix);
        QFETCH(QStringList, names);
        QFETCH(bool, taken);
        const QTemporaryDir folder;
        QVERIFY(QDir(folder.path()).mkdir(u"a folder"_s));
        for (const QString &name : {u"A.ZIP"_s, u"b.txt"_s})
            QVERIFY(QFile(folder.filePath(name)).open(QIODevice::WriteOnly));
        QList<QUrl> urls;
        for (const QString &name : names)
            urls << QUrl::fromLocalFile(folder.filePath(name));

        PathField field;
        field.setKind(kind);
        field.setSuffixes(suffix.isEmpty() ? QStringList() : QStringList{suffix});
        field.setText(u"/before"_s);
        QSignalSpy told(&field, &PathField::pathDropped);
        QCOMPARE(drop(field, urls), taken);
        QCOMPARE(field.text(), taken ? folder.filePath(names.first()) : u"/before"_s);
        QCOMPARE(told.size(), taken ? 1 : 0);
    }

    void newFileInADroppedFolder()
    {
        const QTemporaryDir folder;
        const QList<QUrl> urls{QUrl::fromLocalFile(folder.path())};
        QLineEdit source;
        PathField field;
        field.setKind(PathField::Kind::NewFile);
        field.setSuffixes({u"m4v"_s});
        QVERIFY(drop(field, urls));
        QCOMPARE(field.text(), folder.filePath(QDir(folder.path()).dirName() + u".m4v"_s));
        field.setSource(source);
        source.setText(u"/elsewhere/clip.part.avi"_s);
        for (const QString &name : {u"clip.part.m4v"_s, u"clip.part 2.m4v"_s}) {
            QVERIFY(drop(field, urls));
            QCOMPARE(field.text(), folder.filePath(name));
            QVERIFY(QFile(field.text()).open(QIODevice::WriteOnly)); // the next one makes way
        }
    }

    void takesTheDropsOfItsPage()
    {
        QWidget page;
        PathField field(&page);
        field.takeDropsOf(page);
        const QList<QUrl> home{QUrl::fromLocalFile(QDir::homePath())};
        QVERIFY(drop(page, field, home));
        QCOMPARE(field.text(), QDir::homePath());
        QVERIFY(!drop(page, field, {QUrl::fromLocalFile(u"/gone"_s)}));

        QMimeData data;
        data.setUrls(home);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&page, &enter);
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(&page, &leave);
        QVERIFY(!looksFocused(field));
    }

    void refusesWhileLocked()
    {
        PathField field;
        const QList<QUrl> home{QUrl::fromLocalFile(QDir::homePath())};
        QVERIFY(!drop(field, {QUrl(u"https://example.org/a"_s)}));
        field.setReadOnly(true);
        QVERIFY(!drop(field, home));
        field.setReadOnly(false);
        field.setEnabled(false);
        QVERIFY(!drop(field, home));
        field.setEnabled(true);
        QVERIFY(drop(field, home));
    }

    void toolTip()
    {
        PathField field;
        const QSize before = field.sizeHint();
        field.setText(u"/"_s + QString(4000, u'w'));
        QCOMPARE(field.toolTip(), field.text());
        QCOMPARE(field.sizeHint(), before);
        QCOMPARE(field.minimumSizeHint().width() < 200, true);
        field.setText(u"/<b>bold</b>"_s); // a name, no markup
        QVERIFY(field.toolTip().contains(u"&lt;b&gt;bold"_s));
        field.clear();
        QVERIFY(field.toolTip().isEmpty());
    }

    // The style's animation would otherwise wake the processor up for nobody.
    void hiddenIndicatorRests()
    {
        QApplication::setStyle(u"fusion"_s);
        QWidget page;
        BusyIndicator indicator(&page);
        QSignalSpy changed(&indicator, &BusyIndicator::animatingChanged);
        indicator.stopAnimation(); // changes nothing
        const auto moves = [&] { return indicator.findChild<QAbstractAnimation *>() != nullptr; };
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        indicator.startAnimation();
        indicator.startAnimation();
        QCOMPARE(changed.size(), 1);
        QTRY_VERIFY(moves());
        page.hide(); // another page is chosen
        QTRY_VERIFY(!moves());
        page.show();
        QTRY_VERIFY(moves());
        indicator.stopAnimation();
        QTRY_VERIFY(!moves());
    }

    void elapsedText()
    {
        QCOMPARE(ElapsedLabel::elapsedText(-1), u"0:00"_s);
        QCOMPARE(ElapsedLabel::elapsedText(7'999), u"0:07"_s);
        QCOMPARE(ElapsedLabel::elapsedText(3'599'999), u"59:59"_s);
        QCOMPARE(ElapsedLabel::elapsedText(3'723'000), u"1:02:03"_s);
    }

    void roomIsKept()
    {
        QWidget page;
        auto *row = new QHBoxLayout(&page);
        auto *indicator = new BusyIndicator(&page);
        auto *elapsed = new ElapsedLabel(&page);
        auto *rest = new QLineEdit(&page);
        for (QWidget *widget : {static_cast<QWidget *>(indicator), static_cast<QWidget *>(elapsed),
                                static_cast<QWidget *>(rest)})
            row->addWidget(widget);
        connect(indicator, &BusyIndicator::animatingChanged, elapsed, &ElapsedLabel::setRunning);
        indicator->hide();
        page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&page));
        const QRect before = rest->geometry();
        QVERIFY(!elapsed->isVisible());

        indicator->show();
        indicator->startAnimation();
        QVERIFY(elapsed->isVisible());
        QCOMPARE(elapsed->text(), u"0:00"_s);
        QTRY_COMPARE(elapsed->text(), u"0:01"_s);
        page.hide(); // another page is chosen; this one's run goes on
        page.show();
        QVERIFY(elapsed->isVisible());
        QVERIFY(elapsed->text() != u"0:00"_s);
        QCOMPARE(rest->geometry(), before);

        indicator->stopAnimation();
        indicator->hide();
        QVERIFY(!elapsed->isVisible());
        QCOMPARE(rest->geometry(), before);
    }

private:
    /// Whether the field took what was dropped on it.
    static bool drop(QWidget &target, PathField &field, const QList<QUrl> &urls)
    {
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&target, &enter);
        if (enter.isAccepted() != looksFocused(field))
            QTest::qFail("the field does not show what would happen", __FILE__, __LINE__);
        QDropEvent dropped({5, 5}, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&target, &dropped);
        if (looksFocused(field))
            QTest::qFail("the field shows a drag that is over", __FILE__, __LINE__);
        if (enter.isAccepted() != dropped.isAccepted())
            QTest::qFail("the drag promised something else", __FILE__, __LINE__);
        return dropped.isAccepted() && dropped.dropAction() == Qt::CopyAction;
    }
    static bool drop(PathField &field, const QList<QUrl> &urls) { return drop(field, field, urls); }

    static bool looksFocused(PathField &field)
    {
        struct Style : QProxyStyle {
            mutable bool focused = false;
            void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *,
                               const QWidget *) const override
            {
                focused |= element == PE_PanelLineEdit && (option->state & State_HasFocus);
            }
        } style;
        field.setStyle(&style);
        field.grab();
        field.setStyle(nullptr);
        return style.focused;
    }
};

QTEST_MAIN(PageWidgets)
#include "tst_page_widgets.moc"
