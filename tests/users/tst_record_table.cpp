// Proves that the table of a record page sorts, selects and keeps its columns as people expect of a
// list, and that the page made from the skeleton adds, edits and deletes records of its table.

#include "RecordsTrial.h"
#include "TemplateViewController.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;
using namespace Using;

namespace
{

void clickHeader(const QWidget &page)
{
    QHeaderView &header = *table(page).horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, QPoint(20, header.height() / 2));
}

} // namespace

class TestRecordTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::English); }

    void aRowIsTheSameRecordInEveryOrder()
    {
        RecordsTrial trial;
        for (const QString &name : {u"user10"_s, u"User9"_s, u"%C3%A4gidius"_s, u"zoe"_s})
            RecordsTrial::storeUser(name, 1);
        const QWidget &page = trial.open(Users);
        const QStringList loaded{u"user10"_s, u"User9"_s, u"ägidius"_s, u"zoe"_s};
        const QStringList ascending{u"ägidius"_s, u"User9"_s, u"user10"_s, u"zoe"_s};
        const QStringList descending(ascending.rbegin(), ascending.rend());
        selectRow(page, 1);
        for (const QStringList &order : {ascending, descending, loaded, ascending}) {
            clickHeader(page);
            QCOMPARE(names(page), order);
            QCOMPARE(table(page).selectedRecord(), 1);
            QCOMPARE(table(page).currentIndex().data().toString(), u"User9"_s);
        }
        edit(page, 2);
        QCOMPARE(text(page, "userField"), u"user10"_s);
        type(page, "memoField", u"third"_s);
        press(page, "saveButton");
        QCOMPARE(RecordsTrial::sqlite(u"SELECT User FROM User WHERE Memo='third'"_s), u"user10"_s);
        deleteRow(page, 0);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT User FROM User ORDER BY ID"_s),
                 u"user10\nUser9\nzoe"_s);
        QCOMPARE(names(page), ascending.sliced(1));
        press(page, "addButton");
        type(page, "userField", u"a new one"_s);
        press(page, "saveButton");
        QCOMPARE(table(page).currentIndex().row(), 0); // in sight
        QCOMPARE(table(page).currentIndex().data().toString(), u"a new one"_s);
        QWidget &viewport = *table(page).viewport(); // beside the rows
        QTest::mouseDClick(&viewport, Qt::LeftButton, {}, viewport.rect().bottomRight());
        QVERIFY(!panel(page).isVisible());
        table(page).horizontalHeader()->resizeSection(0, 277);
        QCOMPARE(table(trial.open(Users)).columnWidth(0), 277);
        const QString key = u"Records/User/ColumnWidth0"_s;
        QCOMPARE(QSettings().value(key).toInt(), 277);
        QSettings().setValue(key, u"wide"_s); // not a number: the column fits its texts again
        QVERIFY(table(trial.open(Users)).columnWidth(0) < 277);
    }

    void theRowWithTheFocusIsSelected()
    {
        RecordsTrial trial;
        RecordsTrial::storeUser(u"alice"_s, 1);
        const QWidget &page = trial.open(Users);
        QVERIFY(table(page).hasFocus());
        QVERIFY(!table(page).currentIndex().isValid()); // nothing is chosen yet
        for (int round = 0; round < 2; ++round) {
            QTest::keyClick(&table(page), Qt::Key_Down);
            QCOMPARE(table(page).selectedRecord(), 0);
            table(page).clearSelection();
            QVERIFY(!table(page).currentIndex().isValid());
        }
    }

    void theBareSkeletonAddsBlankRowsAndWritesOverThem()
    {
        RecordsTrial trial;
        auto &page = static_cast<TemplateViewController &>(trial.open(Stock));
        for (int i = 0; i < 2; ++i) {
            press(page, "addButton");
            press(page, "saveButton");
        }
        RecordsTrial::sqlite(u"UPDATE Stock SET User='filled', UserGroupID=4"_s);
        page.reloadData();
        edit(page, 1);
        QCOMPARE(page.schema.User, u"filled"_s);
        press(page, "saveButton");
        QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM Stock"_s), u"1|0|4|filled||\n2|0|0|||"_s);
        deleteRow(page, 0);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT ID FROM Stock"_s), u"2"_s);
        QCOMPARE(trial.boxes.texts, QStringList());
    }
};

QTEST_MAIN(TestRecordTable)
#include "tst_record_table.moc"
