// Proves that the sidebar draws as it must, follows the pointer, and swaps pages without losing
// them.

#include "AppDelegate.h"
#include "ContainerBox.h"
#include "ElidedLabel.h"
#include "HoverTableAppDelegate.h"
#include "HoverTableRowView.h"
#include "HoverTableView.h"
#include "JobList.h"

#include <QEnterEvent>
#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QTranslator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

int pagesMade = 0;

QWidget *makeLinePage(JobList &, QWidget *parent)
{
    ++pagesMade;
    auto *page = new QLineEdit(parent);
    page->setObjectName(u"page%1"_s.arg(pagesMade));
    return page;
}

QList<Tool> tools(int count)
{
    return QList<Tool>(count, {"Zip", "zip", "zip", makeLinePage});
}

struct Sidebar {
    explicit Sidebar(int count) : delegate(tools(count), jobs, app, list)
    {
        list.setFixedWidth(220);
        list.resize(220, 600);
        list.show();
        container.show();
    }

    JobList jobs;
    AppDelegate app;
    ContainerBox container;
    struct Connect {
        Connect(AppDelegate &app, ContainerBox &container) { app.container = &container; }
    } connect{app, container};
    HoverTableView list;
    HoverTableAppDelegate delegate;
};

class PaintCounter : public QObject
{
public:
    explicit PaintCounter(QWidget *widget) { widget->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

void movePointerInto(QWidget &row)
{
    QEnterEvent event({10, 10}, {10, 10}, {10, 10});
    QCoreApplication::sendEvent(&row, &event);
}

void movePointerOutOf(QWidget &row)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(&row, &event);
}

QColor pixel(QWidget &widget, int x, int y)
{
    return widget.grab().toImage().pixelColor(x, y);
}

} // namespace

class tst_Sidebar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { pagesMade = 0; }
    void makesEachPageOnceAndKeepsIt();
    void showsNothingUntilARowIsChosen();
    void theFirstArrowChoosesTheFirstTool();
    void boldsTheSelectedNameOnly();
    void truncatesTheFontSize();
    void localisesNamesTwice();
    void marksTheRowsWhosePageIsAtWork();
    void redrawsOnEnterAndLeaveOnly();
    void drawsHoverSelectionAndSeparator();
    void drawsLinesBelowTheLastRow();
    void drawsLinesInAnEmptyList();
};

void tst_Sidebar::makesEachPageOnceAndKeepsIt()
{
    Sidebar sidebar(8);
    QCOMPARE(pagesMade, 8);
    QCOMPARE(sidebar.delegate.numberOfRowsInTableView(), 8);
    sidebar.delegate.selectTool(0);
    auto *first = qobject_cast<QLineEdit *>(sidebar.container.contentView());
    QVERIFY(first);
    first->setText(u"typed"_s);
    sidebar.delegate.selectTool(5);
    QVERIFY(sidebar.container.contentView() != first);
    sidebar.delegate.selectTool(0);
    QCOMPARE(sidebar.container.contentView(), first);
    QCOMPARE(first->text(), u"typed"_s);
    QCOMPARE(pagesMade, 8);
}

void tst_Sidebar::showsNothingUntilARowIsChosen()
{
    Sidebar sidebar(3);
    QCOMPARE(sidebar.container.contentView(), nullptr);
    QVERIFY(!sidebar.delegate.viewItem(0)->isVisible());
    QTest::mouseClick(sidebar.list.rowView(2), Qt::LeftButton);
    QCOMPARE(sidebar.container.contentView(), sidebar.delegate.viewItem(2));
    QTest::keyClick(&sidebar.list, Qt::Key_Up);
    QCOMPARE(sidebar.container.contentView(), sidebar.delegate.viewItem(1));
}

void tst_Sidebar::theFirstArrowChoosesTheFirstTool()
{
    Sidebar sidebar(3);
    sidebar.list.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&sidebar.list));
    sidebar.list.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&sidebar.list, Qt::Key_Down);
    QCOMPARE(sidebar.container.contentView(), sidebar.delegate.viewItem(0));
    const QImage withRing = sidebar.list.rowView(0)->grab().toImage();
    QTest::mousePress(sidebar.list.rowView(0), Qt::LeftButton);
    QVERIFY(withRing != sidebar.list.rowView(0)->grab().toImage()); // the pointer needs no ring
}

void tst_Sidebar::boldsTheSelectedNameOnly()
{
    Sidebar sidebar(3);
    sidebar.delegate.selectTool(1);
    for (int row = 0; row < 3; ++row)
        QCOMPARE(sidebar.list.rowView(row)->textField()->font().bold(), row == 1);
    sidebar.delegate.selectTool(2);
    QVERIFY(!sidebar.list.rowView(1)->textField()->font().bold());
}

void tst_Sidebar::truncatesTheFontSize()
{
    Sidebar sidebar(2);
    ElidedLabel *name = sidebar.list.rowView(1)->textField();
    QFont font = name->font();
    font.setPointSizeF(13.7);
    name->setFont(font);
    sidebar.delegate.selectTool(0);
    QCOMPARE(name->font().pointSizeF(), 13.0);
}

void tst_Sidebar::localisesNamesTwice()
{
    // The text behind the first key is itself a key of the table.
    class Table : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char *, const char *id, const char *, int) const override
        {
            return QLatin1String(id) == "Zip"_L1  ? u"Again"_s
                : QLatin1String(id) == "Again"_L1 ? u"Twice"_s
                                                  : QString();
        }
    } table;
    QCoreApplication::installTranslator(&table);
    Sidebar sidebar(1);
    QCOMPARE(sidebar.delegate.index(0).data().toString(), u"Twice"_s);
}

void tst_Sidebar::marksTheRowsWhosePageIsAtWork()
{
    Sidebar sidebar(2);
    const auto marked = [&](int row) {
        const auto marks = sidebar.list.rowView(row)->findChildren<QWidget *>();
        return std::ranges::any_of(marks, [](const QWidget *child) {
            return !child->accessibleName().isEmpty() && child->isVisible();
        });
    };
    {
        const Job job = sidebar.jobs.begin({.page = u"page2"_s, .title = {}});
        QVERIFY(marked(1));
        QVERIFY(!marked(0));
        QVERIFY(
            !sidebar.delegate.index(1).data(Qt::AccessibleDescriptionRole).toString().isEmpty());
        QVERIFY(sidebar.delegate.index(0).data(Qt::AccessibleDescriptionRole).toString().isEmpty());
    }
    QVERIFY(!marked(1));
}

void tst_Sidebar::redrawsOnEnterAndLeaveOnly()
{
    Sidebar sidebar(2);
    HoverTableRowView &row = *sidebar.list.rowView(0);
    QVERIFY(QTest::qWaitForWindowExposed(&sidebar.list));
    PaintCounter paints(&row);
    QTRY_COMPARE(paints.count, 0);
    movePointerInto(row);
    QVERIFY(row.mouseInside());
    QTRY_COMPARE(paints.count, 1);
    movePointerInto(row);
    QTest::mouseMove(&row, {40, 10});
    QCoreApplication::sendPostedEvents();
    QCOMPARE(paints.count, 1);
    movePointerOutOf(row);
    QVERIFY(!row.mouseInside());
    QTRY_COMPARE(paints.count, 2);
}

void tst_Sidebar::drawsHoverSelectionAndSeparator()
{
    Sidebar sidebar(2);
    HoverTableRowView &row = *sidebar.list.rowView(0);
    QPalette palette = row.palette();
    palette.setColor(QPalette::Window, QColor(100, 120, 140));
    row.setPalette(palette);
    const int middle = row.width() / 2;
    const int bottom = row.height() - 1;
    QCOMPARE(row.separatorRect(), QRectF(0, bottom, row.width(), 1));

    QCOMPARE(pixel(row, 3, 3), QColor(100, 120, 140));
    QCOMPARE(pixel(row, middle, bottom), QColor(204, 204, 204));
    QVERIFY(pixel(row, 1, bottom) != QColor(204, 204, 204)); // faded out at the ends

    movePointerInto(row);
    QCOMPARE(pixel(row, middle, 2), QColor(Qt::white));
    QCOMPARE(pixel(row, 0, 2).red(), 100 + 1);
    movePointerOutOf(row);

    sidebar.delegate.selectTool(0);
    QCOMPARE(pixel(row, row.width() - 14, row.height() / 2), QColor(209, 209, 209)); // 0.82
    QCOMPARE(pixel(row, 2, row.height() / 2), QColor(100, 120, 140)); // outside the inset
    QVERIFY(pixel(row, 6, 6) != QColor(209, 209, 209)); // outside the round corner
    row.setSelectionHighlightStyle(HoverTableRowView::SelectionHighlightStyle::None);
    QCOMPARE(pixel(row, row.width() - 14, row.height() / 2), QColor(100, 120, 140));
}

void tst_Sidebar::drawsLinesBelowTheLastRow()
{
    Sidebar sidebar(2);
    const int rowHeight = sidebar.list.rowHeight();
    QCOMPARE(sidebar.list.yPositionPastLastRow(), 2.0 * rowHeight);
    const QImage list = sidebar.list.viewport()->grab().toImage();
    const int middle = list.width() / 2;
    const QColor line(204, 204, 204);
    const QColor background = list.pixelColor(middle, 2 * rowHeight + 5);
    QVERIFY(background != line);
    QCOMPARE(list.pixelColor(middle, 2 * rowHeight), background); // the last row has its own line
    QCOMPARE(list.pixelColor(middle, 3 * rowHeight), line);
    QCOMPARE(list.pixelColor(middle, 4 * rowHeight), line);
    QCOMPARE(list.pixelColor(middle, 3 * rowHeight + 1), background);
}

void tst_Sidebar::drawsLinesInAnEmptyList()
{
    HoverTableView list;
    QStandardItemModel empty;
    list.setModel(&empty);
    list.resize(220, 300);
    QCOMPARE(list.yPositionPastLastRow(), 0.0);
    const QImage image = list.viewport()->grab().toImage();
    QCOMPARE(image.pixelColor(110, list.rowHeight()), QColor(204, 204, 204));
    QVERIFY(image.pixelColor(110, 1) != QColor(204, 204, 204));
}

QTEST_MAIN(tst_Sidebar)
#include "tst_sidebar.moc"
