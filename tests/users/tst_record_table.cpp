// Proves that the table of a record page sorts, selects and remembers as people expect of a list.

#include "RecordsTrial.h"

#include <QHeaderView>

using namespace Qt::StringLiterals;
using namespace Using;

namespace
{

void clickHeader(const QWidget &page, int column)
{
    QHeaderView &header = *table(page).horizontalHeader();
    const QPoint place(header.sectionViewportPosition(column) + 20, header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
}

} // namespace

class tst_RecordTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale::English); }

    void sortsByClicksWithoutLosingTheSelectedRecord()
    {
        RecordsTrial trial;
        for (const QString &name : {u"user10"_s, u"User9"_s, u"%C3%A4gidius"_s, u"zoe"_s})
            RecordsTrial::storeUser(name, 1);
        const QWidget &page = trial.open(Users);
        const QStringList loaded{u"user10"_s, u"User9"_s, u"ägidius"_s, u"zoe"_s};
        const QStringList ascending{u"ägidius"_s, u"User9"_s, u"user10"_s, u"zoe"_s};
        const QStringList descending(ascending.rbegin(), ascending.rend());
        QCOMPARE(names(page), loaded);
        selectRow(page, 1);
        for (const QStringList &order : {ascending, descending, loaded}) {
            clickHeader(page, 0);
            QCOMPARE(names(page), order);
            QCOMPARE(table(page).selectedRow(), 1);
            QCOMPARE(table(page).currentIndex().data().toString(), u"User9"_s);
        }
    }

    void aSortedRowIsEditedAndDeletedAsItself()
    {
        RecordsTrial trial;
        for (const QString &name : {u"c"_s, u"a"_s, u"b"_s})
            RecordsTrial::storeUser(name, 1);
        const QWidget &page = trial.open(Users);
        clickHeader(page, 0);
        edit(page, 2);
        QCOMPARE(text(page, "userField"), u"c"_s);
        type(page, "memoField", u"third"_s);
        press(page, "saveButton");
        QCOMPARE(RecordsTrial::sqlite(u"SELECT User FROM User WHERE Memo='third'"_s), u"c"_s);
        QCOMPARE(names(page), QStringList({u"a"_s, u"b"_s, u"c"_s}));
        selectRow(page, 0);
        press(page, "delButton");
        answerQuestion(page, QMessageBox::AcceptRole);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT User FROM User ORDER BY ID"_s), u"c\nb"_s);
        QCOMPARE(names(page), QStringList({u"b"_s, u"c"_s}));
    }

    void aNewRecordIsSelectedAtItsPlace()
    {
        RecordsTrial trial;
        RecordsTrial::storeUser(u"b"_s, 1);
        RecordsTrial::sqlite(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i+1 FROM n "
                             "WHERE i<200) INSERT INTO User(ShopID,UserGroupID,User,Password,Memo) "
                             "SELECT 0,1,'c'||i,'pw','' FROM n"_s);
        const QWidget &page = trial.open(Users);
        clickHeader(page, 0);
        table(page).scrollToBottom();
        press(page, "addButton");
        type(page, "userField", u"a"_s);
        press(page, "saveButton");
        QCOMPARE(table(page).currentIndex().row(), 0);
        QCOMPARE(table(page).currentIndex().data().toString(), u"a"_s);
        QVERIFY(table(page).viewport()->rect().contains(
            table(page).visualRect(table(page).currentIndex()).topLeft()));
    }

    void columnsFitAndAreRemembered()
    {
        RecordsTrial trial;
        RecordsTrial::storeGroup(u"A group with quite a long name"_s);
        {
            const QWidget &page = trial.open(UserGroups);
            const int text = table(page).fontMetrics().horizontalAdvance(cell(page, 0));
            QVERIFY(table(page).columnWidth(0) > text);
            table(page).horizontalHeader()->resizeSection(0, 277);
        }
        const QWidget &again = trial.open(UserGroups);
        QCOMPARE(table(again).columnWidth(0), 277);
        QVERIFY(table(trial.page("UserViewController")).columnWidth(0) != 277);
    }

    void anEmptyTableSaysSo()
    {
        RecordsTrial trial;
        const QWidget &page = trial.open(Users);
        const auto isBlank = [&page] {
            const QImage shown = table(page).viewport()->grab().toImage();
            QImage blank = shown;
            blank.fill(shown.pixelColor(0, 0));
            return shown == blank;
        };
        QVERIFY(!isBlank());
        table(page).setProperty("emptyText", QString());
        QVERIFY(isBlank());
    }

    void clicksBesideTheRowsDoNothingAndTabLeavesThem()
    {
        RecordsTrial trial;
        RecordsTrial::storeUser(u"alice"_s, 1);
        const QWidget &page = trial.open(Users);
        QWidget &viewport = *table(page).viewport();
        QTest::mouseDClick(&viewport, Qt::LeftButton, {}, viewport.rect().center());
        QVERIFY(!panel(page).isVisible());
        selectRow(page, 0);
        QTest::keyClick(&table(page), Qt::Key_Tab);
        QVERIFY(!table(page).hasFocus());
    }
};

QTEST_MAIN(tst_RecordTable)
#include "tst_record_table.moc"
