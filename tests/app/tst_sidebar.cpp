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
    void makesEachPageOnceAndKeepsIt()
    {
        Sidebar sidebar(8);
        QCOMPARE(pagesMade, 8);
        QCOMPARE(sidebar.delegate.numberOfRowsInTableView(), 8);
        QCOMPARE(sidebar.container.contentView(), nullptr); // until a row is chosen
        sidebar.delegate.selectTool(0);
        auto *first = qobject_cast<QLineEdit *>(sidebar.container.contentView());
        first->setText(u"typed"_s);
        QTest::mouseClick(sidebar.list.rowView(5), Qt::LeftButton);
        QCOMPARE(sidebar.container.contentView(), sidebar.delegate.viewItem(5));
        QVERIFY(!first->isVisible());
        sidebar.delegate.selectTool(0);
        QCOMPARE(first->text(), u"typed"_s);
        QCOMPARE(pagesMade, 8);
    }

    void theFirstArrowChoosesTheFirstTool()
    {
        Sidebar sidebar(3);
        sidebar.list.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&sidebar.list));
        sidebar.list.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&sidebar.list, Qt::Key_Down);
        QCOMPARE(sidebar.container.contentView(), sidebar.delegate.viewItem(0));
        const QImage withRing = sidebar.list.rowView(0)->grab().toImage();
        QTest::mousePress(sidebar.list.rowView(0), Qt::LeftButton);
        QVERIFY(withRing
                != sidebar.list.rowView(0)->grab().toImage()); // which the pointer needs not
    }

    void theSelectedNameAloneIsBoldAndItsSizeWhole()
    {
        Sidebar sidebar(2);
        ElidedLabel *name = sidebar.list.rowView(1)->textField();
        for (const int selected : {1, 0}) {
            QFont font = name->font();
            font.setPointSizeF(13.7);
            name->setFont(font);
            sidebar.delegate.selectTool(selected);
            QCOMPARE(name->font().bold(), selected == 1);
            QCOMPARE(name->font().pointSizeF(), 13.0);
        }
    }

    void localisesNamesTwice()
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

    void marksTheRowsWhosePageIsAtWork()
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
            QVERIFY(!sidebar.delegate.index(1)
                         .data(Qt::AccessibleDescriptionRole)
                         .toString()
                         .isEmpty());
            QVERIFY(
                sidebar.delegate.index(0).data(Qt::AccessibleDescriptionRole).toString().isEmpty());
        }
        QVERIFY(!marked(1));
    }

    void redrawsOnEnterAndLeaveOnly()
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

    void drawsHoverSelectionAndSeparator()
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

    void drawsLinesBelowTheLastRow_data()
    {
        QTest::addColumn<int>("rows");
        QTest::newRow("some") << 2;
        QTest::newRow("none") << 0;
    }

    // The last row draws its own line.
    void drawsLinesBelowTheLastRow()
    {
        QFETCH(int, rows);
        Sidebar sidebar(rows);
        const int rowHeight = sidebar.list.rowHeight();
        const int past = rows * rowHeight;
        QCOMPARE(sidebar.list.yPositionPastLastRow(), double(past));
        const QImage list = sidebar.list.viewport()->grab().toImage();
        const QColor line(204, 204, 204);
        for (const int y : {past, past + 5, past + rowHeight + 1})
            QVERIFY(list.pixelColor(110, y) != line);
        QCOMPARE(list.pixelColor(110, past + rowHeight), line);
        QCOMPARE(list.pixelColor(110, past + 2 * rowHeight), line);
    }
};

QTEST_MAIN(tst_Sidebar)
#include "tst_sidebar.moc"
