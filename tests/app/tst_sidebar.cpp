// Proves that the sidebar draws as it must, swaps pages without losing them, and lists the running
// jobs below its tools, whose rows lead to their pages and stop their runs, also by keyboard alone.

#include "Application.h"
#include "ContainerBox.h"
#include "HoverTableAppDelegate.h"
#include "HoverTableRowView.h"
#include "HoverTableView.h"
#include "JobStrip.h"
#include "PageControls.h"
#include "Tool.h"

#include <QApplication>
#include <QEnterEvent>
#include <QPaintEvent>
#include <QProgressBar>
#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace
{

const int zip = rowOfTool(u"zip"_s).value();

class Window
{
public:
    Window()
    {
        m_application.window().resize(820, 560);
        m_application.start();
        if (!QTest::qWaitForWindowActive(&window()))
            qFatal("the window does not come up");
    }
    MainWindow &window() { return m_application.window(); }
    HoverTableView &list() { return window().tableView(); }
    HoverTableRowView &row(int number) { return *list().rowView(number); }
    HoverTableAppDelegate &tools() { return m_application.tools(); }
    JobList &jobs() { return m_application.jobs(); }
    JobStrip &strip() { return *window().findChild<JobStrip *>(); }
    ContainerBox &container() { return *m_application.delegate().container; }
    QList<QPushButton *> buttons()
    {
        QList<QPushButton *> shown = strip().findChildren<QPushButton *>();
        shown.removeIf([](const QPushButton *button) { return !button->isVisible(); });
        return shown;
    }
    Job begin() { return jobs().begin({u"ZIPViewController"_s, u"Zip"_s, u"/home/jane/<b>"_s}); }

private:
    Application m_application;
};

/// Which part of a widget is painted as long as this lives.
class PaintedRegion : public QObject
{
public:
    explicit PaintedRegion(QWidget &widget) { widget.installEventFilter(this); }

    QRegion region;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint)
            region += static_cast<QPaintEvent *>(event)->region();
        return false;
    }
};

QColor pixel(QWidget &widget, int x, int y)
{
    return widget.grab().toImage().pixelColor(x, y);
}

} // namespace

class TestSidebar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { Application::prepare(); }

    void keepsEachPage()
    {
        Window window;
        window.tools().selectTool(zip);
        QWidget *page = window.container().contentView();
        PageControls::fill(*page, "srcFolderField", u"typed"_s);
        QTest::mouseClick(&window.row(5), Qt::LeftButton);
        QCOMPARE(window.container().contentView(), window.tools().viewItem(5));
        QVERIFY(!page->isVisible());
        QTest::mouseClick(&window.row(5), Qt::LeftButton, Qt::ControlModifier);
        QTest::mouseClick(window.list().viewport(), Qt::LeftButton, {},
                          window.list().viewport()->rect().bottomLeft() + QPoint(9, -9));
        QVERIFY(window.row(5).isSelected()); // no click clears the selection
        window.tools().selectTool(zip);
        QCOMPARE(window.container().contentView(), page);
        QCOMPARE(PageControls::text(*page, "srcFolderField"), u"typed"_s);
    }

    void theFirstArrowChoosesTheFirstTool()
    {
        Window window;
        window.list().setFocus(Qt::TabFocusReason);
        QTest::keyClick(&window.list(), Qt::Key_Down);
        QCOMPARE(window.container().contentView(), window.tools().viewItem(0));
        const QImage withRing = window.row(0).grab().toImage();
        QTest::mousePress(&window.row(0), Qt::LeftButton); // it clears the ring
        QVERIFY(withRing != window.row(0).grab().toImage());
    }

    // The text behind a tool's key may be a key itself.
    void localisesNamesTwice()
    {
        const PageControls::MarkedTexts marked;
        Window window;
        QCOMPARE(window.tools().index(zip).data().toString(), u"[[Zip]]"_s);
    }

    void drawsHoverSelectionAndLines()
    {
        Window window;
        HoverTableRowView &row = window.row(1);
        const QColor ground = row.palette().color(QPalette::Window);
        const QColor line(204, 204, 204);
        const int middle = row.width() / 2;
        QCOMPARE(pixel(row, middle, 2), ground);
        QCOMPARE(pixel(row, middle, row.height() - 1), line);
        QVERIFY(pixel(row, 1, row.height() - 1) != line); // faded out at the ends

        QEnterEvent enter({10, 10}, {10, 10}, {10, 10});
        QCoreApplication::sendEvent(&row, &enter);
        QCOMPARE(pixel(row, middle, 2), QColor(Qt::white));
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(&row, &leave);
        QCOMPARE(pixel(row, middle, 2), ground);
        window.tools().selectTool(1);
        QCOMPARE(pixel(row, row.width() - 14, row.height() / 2), QColor(209, 209, 209));
        QCOMPARE(pixel(row, 2, row.height() / 2), ground); // outside the inset
        row.setSelectionHighlightStyle(HoverTableRowView::SelectionHighlightStyle::None);
        QCOMPARE(pixel(row, row.width() - 14, row.height() / 2), ground);

        // Below the rows the lines go on; the last row draws its own.
        const int height = window.list().rowHeight();
        const int past = window.tools().rowCount() * height;
        const QImage list = window.list().viewport()->grab().toImage();
        QVERIFY(list.height() > past + height);
        QVERIFY(list.pixelColor(110, past) != line);
        QCOMPARE(list.pixelColor(110, past + height), line);
    }

    // A row that is out of view shows no page, so whatever chooses one scrolls to it first.
    void choosesOnlyWhatIsInView()
    {
        Window window;
        window.list().setFixedHeight(2 * window.list().rowHeight()); // as if it had many more rows
        window.tools().selectTool(0);
        QTRY_VERIFY(!window.list().isInView(7));
        QItemSelectionModel &selection = *window.list().selectionModel();
        selection.select(window.tools().index(7), QItemSelectionModel::ClearAndSelect);
        QVERIFY(window.row(7).isSelected());
        QCOMPARE(window.container().contentView(), window.tools().viewItem(0));

        const auto expectPage = [&window](int row) {
            QCOMPARE(window.container().contentView(), window.tools().viewItem(row));
            QVERIFY(window.list().isInView(row) && window.row(row).isSelected());
        };
        window.tools().selectTool(6);
        expectPage(6);
        QTest::keyClick(&window.list(), Qt::Key_Home);
        expectPage(0);
        QTest::keyClick(&window.list(), Qt::Key_End);
        expectPage(7);
        const QString first = window.tools().index(0).data().toString();
        QTest::keyClick(&window.list(), first.at(0).toLatin1());
        expectPage(0);
    }

    // A selected row draws a shape that follows its size.
    void drawsOnlyWhatAResizeChanges()
    {
        Window window;
        window.tools().selectTool(2);
        for (const auto &[row, isSelected] : {std::pair(1, false), {2, true}}) {
            HoverTableRowView &view = window.row(row);
            const QRect before = view.rect();
            view.resize(before.width() - 20, before.height());
            QTest::qWait(1);
            const PaintedRegion painted(view);
            view.resize(before.size());
            QTRY_VERIFY(!painted.region.isEmpty());
            const QRegion separator(view.separatorRect().toAlignedRect());
            const QRegion appeared(before.adjusted(before.width() - 20, 0, 0, 0));
            QCOMPARE(painted.region, isSelected ? QRegion(before) : separator + appeared);
        }
    }

    void showsWhatRunsAndMovesNoPage()
    {
        Window window;
        const QRect page = window.container().geometry();
        const auto isMarked = [&window](int row) {
            const auto description =
                window.tools().index(row).data(Qt::AccessibleDescriptionRole).toString();
            return window.row(row).findChild<RunningMark *>()->isVisible()
                && !description.isEmpty();
        };
        QVERIFY(!window.strip().isVisible());
        std::vector<Job> jobs;
        for (int count = 1; count <= 4; ++count) {
            jobs.push_back(window.begin());
            QTRY_COMPARE(window.buttons().size(), 2 * count);
            const int oneRow = window.buttons().constFirst()->sizeHint().height();
            QTRY_COMPARE(window.strip().height(), std::min(count, 3) * oneRow); // then it scrolls
            QCOMPARE(window.container().geometry(), page);
            QCOMPARE(window.strip().geometry().bottom(), page.bottom());
        }
        QVERIFY(isMarked(zip) && !isMarked(0));
        QCOMPARE(window.buttons().constFirst()->accessibleName(), u"Zip: /home/jane/<b>"_s);
        QVERIFY(window.buttons().constFirst()->toolTip().contains(u"/home/jane/&lt;b&gt;"_s));
        jobs.back().end(JobOutcome::Failed);
        QCOMPARE(window.tools().viewItem(zip)->accessibleDescription(),
                 qtTrId("Notice.Failed").arg(u"Zip"_s));
        jobs.clear();
        window.begin().end(JobOutcome::Succeeded); // too brief to be shown
        QVERIFY(!window.strip().isVisible() && !isMarked(zip));
        QCOMPARE(window.container().geometry(), page);
    }

    void showsHowFarARunIs()
    {
        Window window;
        Job job = window.begin();
        QTRY_COMPARE(window.buttons().size(), 2);
        const auto *bar = window.strip().findChild<QProgressBar *>();
        QVERIFY(!bar->isVisible());
        const int height = window.strip().height();
        QSignalSpy values(bar, &QProgressBar::valueChanged); // which assistive programs get
        const QImage before = window.strip().grab().toImage();
        for (quint64 done = 0; done <= 1000; ++done) {
            job.setProgress(done, 1000);
            if (done == 431)
                QVERIFY(window.strip().grab().toImage() != before);
        }
        QVERIFY(bar->isVisible() && !bar->accessibleName().isEmpty());
        QList<int> tenths;
        for (const QVariantList &value : std::as_const(values))
            tenths += value.constFirst().toInt();
        QCOMPARE(tenths, QList({10, 20, 30, 40, 50, 60, 70, 80, 90, 100}));
        QCOMPARE(window.strip().height(), height); // room was kept for the bar
        window.buttons().constFirst()->setFocus();
        QVERIFY(window.buttons().constFirst()->accessibleDescription().contains(
            qtTrId("Jobs.Percent").arg(100)));
        job.setItems(12'345, 1); // other work of the same job, without a known end
        QVERIFY(!bar->isVisible());
    }

    void worksFromTheKeyboard()
    {
        Window window;
        const Job job = window.begin();
        QTRY_COMPARE(window.buttons().size(), 2);
        QPushButton *show = window.buttons().constFirst();
        QPushButton *stop = window.buttons().constLast();
        QCOMPARE(stop->accessibleName(), qtTrId("Jobs.Stop.Name").arg(u"Zip"_s));
        for (int presses = 0; presses < 100 && !show->hasFocus(); ++presses)
            QTest::keyClick(&window.window(), Qt::Key_Tab);
        QVERIFY(show->hasFocus());
        QTest::keyClick(show, Qt::Key_Return);
        QCOMPARE(window.container().contentView(), window.tools().viewItem(zip));

        show->setFocus();
        QTest::keyClick(&window.window(), Qt::Key_Tab);
        QVERIFY(stop->hasFocus());
        QTest::keyClick(stop, Qt::Key_Return);
        QVERIFY(job.stopToken().stop_requested());
        QVERIFY(!stop->isEnabled()); // the run still has to end
    }

    void aRunThatEndsInsideItsStop()
    {
        Window window;
        Job job = window.begin();
        const std::stop_callback onStop(job.stopToken(), [&] { job.end(JobOutcome::Stopped); });
        QTRY_COMPARE(window.buttons().size(), 2);
        QTest::mouseClick(window.buttons().constLast(), Qt::LeftButton);
        QVERIFY(!window.strip().isVisible());
        QTRY_VERIFY(window.strip().findChildren<QPushButton *>().isEmpty());
    }
};

QTEST_MAIN(TestSidebar)
#include "tst_sidebar.moc"
