#include "TemplateViewController.h"

#include "ThemedLabels.h"
#include "ui_AbstractViewController.h"

#include <QHeaderView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

// The page opens with the right to see users, not with a right of its own module.
TemplateViewController::TemplateViewController(QWidget *parent)
    : RecordViewController(
        {.table = "Stock"_L1, .view = "B"_L1, .add = "F2"_L1, .edit = "F3"_L1, .remove = "F4"_L1},
        parent)
{
    setObjectName(u"TemplateViewController"_s);
    table->verticalHeader()->show(); // only a number distinguishes the rows
    awakeFromNib();
}

void TemplateViewController::initLocalizables()
{
    setTitle(qtTrId("Stock"), qtTrId("Stock.Hint"));
    setColumns({{u"Stock"_s, qtTrId("Stock.Column")}});
    auto *hint = new HintLabel(qtTrId("Stock.Blank"), form());
    (new QVBoxLayout(form()))->addWidget(hint);
}

void TemplateViewController::reloadData()
{
    schema = UserSchema();
    RecordViewController::reloadData();
}

UserSchema TemplateViewController::getSchema()
{
    schema = UserSchema();
    return schema;
}

UserSchema TemplateViewController::editedRecord(int ID)
{
    schema = RecordViewController::editedRecord(ID);
    return schema;
}

void TemplateViewController::setAllStatus(Operation status)
{
    if (status == Operation::AddRecord)
        localInit();
    else if (status != Operation::None)
        schema = data.value(table->selectedRecord());
}

void TemplateViewController::deleteRecord(int row)
{
    schema = data.value(row);
    RecordViewController::deleteRecord(row);
}

QString TemplateViewController::objectValueForTableColumn(const QString &, int row)
{
    schema = data[row];
    return {};
}
