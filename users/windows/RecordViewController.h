#pragma once

#include "AbstractViewController.h"

#include <algorithm>
#include <optional>
#include <utility>

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
        const bool isLoaded = loadRecords();
        showReadable(isLoaded);
        if (!isLoaded)
            return;
        table->reloadRecords();
        if (selected)
            selectID(*selected);
    }

protected:
    using AbstractViewController::AbstractViewController;

    /// A new record from the sheet's fields, with `ID` and `ShopID` 0.
    virtual Record getSchema() = 0;

    /// Fills `data`. If the select fails, it returns false and `data` stays as it is.
    virtual bool loadRecords()
    {
        blGeneral = std::make_unique<BLGeneral>(QString(m_module.table));
        auto loaded = blGeneral->select("1=1", Record{});
        if (loaded)
            data = std::move(*loaded);
        return loaded.has_value();
    }

    /// The record that replaces the one with this key: the sheet's fields, under the same key.
    virtual Record editedRecord(int ID)
    {
        Record record = getSchema();
        record.ID = ID;
        return record;
    }

    /// Whether the column of any record in the table holds the text; none if that cannot be read.
    /// False without a gateway, as saving fails then.
    std::optional<bool> isTaken(QLatin1String column, const QString &text)
    {
        const QString stored = storedText(text);
        QStringList forms{stored};
        if (isLocal() && text.contains(u'#')) // earlier versions stored it as it is
            forms += QString(stored).replace(QLatin1String("%23"), QLatin1String("#"));
        for (const QString &form : std::as_const(forms)) {
            if (!blGeneral)
                return false;
            const auto found =
                blGeneral->select(column + QLatin1String("='") + form + u'\'', Record{});
            if (!found)
                return std::nullopt;
            if (!found->isEmpty())
                return true;
        }
        return false;
    }

    Stored storedRecord() override
    {
        const int row = table->selectedRecord();
        if (row < 0 || !blGeneral || !isLocal() || data[row].ID == 0)
            return Stored::Same;
        const auto found = blGeneral->select(clauseFor(row), Record{});
        if (!found)
            return Stored::Unreadable;
        if (found->isEmpty())
            return Stored::Deleted;
        return found->first() == data[row] ? Stored::Same : Stored::Changed;
    }

    bool hasRowWithoutKey() const override
    {
        return std::ranges::find(data, 0, &Record::ID) != data.end();
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
        if (row < 0 || !blGeneral || !blGeneral->delete_(clauseFor(row)))
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

private:
    static bool isLocal() { return DB::getDBType() == QLatin1String("sqlite3"); }
    QString clauseFor(int row) const
    {
        return QStringLiteral("ID=") + QString::number(data[row].ID);
    }
};
