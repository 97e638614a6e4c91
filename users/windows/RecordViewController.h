#pragma once

#include "AbstractViewController.h"
#include "MiscTool.h"

#include <algorithm>

/// Loads, saves and deletes records of the page's class, in the way that all pages do. Rows are
/// positions in `data`, whatever order the table shows.
template <RecordClass Record>
class RecordViewController : public AbstractViewController
{
public:
    QList<Record> data; ///< The rows, in the order in which they were loaded.

    int numberOfRowsInTableView() const override { return int(data.size()); }

    /// The record that was selected is selected again if it still exists.
    void reloadData() override
    {
        if (!mayView())
            return;
        const int row = table->selectedRecord();
        const std::optional<int> selected = row < 0 ? std::nullopt : std::optional(data[row].ID);
        loadRecords();
        table->reloadRecords();
        if (selected)
            selectID(*selected);
    }

protected:
    using AbstractViewController::AbstractViewController;

    /// A new record from the sheet's fields, with `ID` and `ShopID` 0.
    virtual Record getSchema() = 0;

    /// Fills `data`. A select that fails gives an empty list.
    virtual void loadRecords()
    {
        blGeneral = std::make_unique<BLGeneral>(QString(m_module.table));
        data = blGeneral->select("1=1", Record{}).value_or(QList<Record>());
    }

    /// The record that replaces the one with this key: the sheet's fields, under the same key.
    virtual Record editedRecord(int ID)
    {
        Record record = getSchema();
        record.ID = ID;
        return record;
    }

    /// Whether the column of any record in the table holds the text, which is escaped first.
    bool isTaken(QLatin1String column, const QString &text)
    {
        if (!blGeneral)
            return false;
        const QString clause = column + QLatin1String("='") + MiscTool::encode2UTF8(text) + u'\'';
        const auto found = blGeneral->select(clause, Record{});
        return found && !found->isEmpty();
    }

    /// Fails without a gateway, without a selected row, and for Operation::ViewRecord.
    bool writeRecord() override
    {
        if (!blGeneral)
            return false;
        if (operation == Operation::AddRecord)
            return blGeneral->insert(getSchema());
        const int row = table->selectedRecord();
        if (operation != Operation::EditRecord || row < 0)
            return false;
        return blGeneral->update(editedRecord(data[row].ID));
    }

    void deleteRecord(int row) override
    {
        if (row < 0 || !blGeneral
            || !blGeneral->delete_(QStringLiteral("ID=") + QString::number(data[row].ID)))
            return;
        data.removeAt(row);
        table->reloadRecords();
    }

    int newestID() const override
    {
        const auto newest = std::ranges::max_element(data, {}, &Record::ID);
        return newest == data.end() ? 0 : std::max(newest->ID, 0);
    }

    void selectID(int ID) override
    {
        const auto found = std::ranges::find(data, ID, &Record::ID);
        if (found != data.end())
            table->selectRecord(int(found - data.begin()));
    }
};
