// Proves that the page made from the bare skeleton runs the whole cycle against its table.

#include "RecordsTrial.h"
#include "TemplateViewController.h"

using namespace Qt::StringLiterals;
using namespace Using;

class tst_Stock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsBlankRowsAndWritesOverThem()
    {
        RecordsTrial trial;
        auto &page = static_cast<TemplateViewController &>(trial.open(Stock));
        for (int i = 0; i < 2; ++i) {
            press(page, "addButton");
            press(page, "saveButton");
        }
        QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM Stock"_s), u"1|0|0|||\n2|0|0|||"_s);
        QCOMPARE(names(page), QStringList({QString(), QString()}));

        RecordsTrial::sqlite(u"UPDATE Stock SET User='filled', UserGroupID=4"_s);
        page.reloadData();
        QCOMPARE(page.schema.User, QString());
        edit(page, 1);
        QCOMPARE(page.schema.ID, 2);
        QCOMPARE(page.schema.User, u"filled"_s);
        press(page, "saveButton");
        QCOMPARE(RecordsTrial::sqlite(u"SELECT * FROM Stock"_s), u"1|0|4|filled||\n2|0|0|||"_s);

        selectRow(page, 0);
        press(page, "delButton");
        answerQuestion(page, QMessageBox::AcceptRole);
        QCOMPARE(RecordsTrial::sqlite(u"SELECT ID FROM Stock"_s), u"2"_s);
        QCOMPARE(trial.boxes.texts, QStringList());
    }
};

QTEST_MAIN(tst_Stock)
#include "tst_stock.moc"
