#pragma once

#include <QAbstractTableModel>
#include <QCollator>

#include <vector>

/// Where a record table takes its rows from: the page with the loaded records.
class RecordTableSource
{
public:
    virtual int numberOfRowsInTableView() const = 0;
    /// The text of one cell; the column is named by its identifier, the row is that of the record.
    virtual QString objectValueForTableColumn(const QString &column, int row) = 0;

protected:
    ~RecordTableSource() = default;
};

/// Shows a page's records in the order that the user asked for by clicking a column. The records
/// themselves stay in the order in which they were loaded; a record's place among them is called
/// its record row here, to tell it from the row of the table.
class RecordTableModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    struct Column {
        QString identifier;
        QString title;
    };

    RecordTableModel(RecordTableSource &source, QObject *parent);

    void setColumns(const QList<Column> &columns);
    /// Takes the rows anew, in the order that was asked for last. Forgets the selection.
    void reloadData();

    int recordRow(const QModelIndex &index) const; ///< -1 for no cell.
    QModelIndex indexOfRecord(int recordRow) const; ///< Invalid where there is no such record.

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /// Column -1 is the order of loading. Texts are compared as the user's language does, numbers
    /// inside them by value. Selected records stay selected.
    void sort(int column, Qt::SortOrder order) override;

private:
    void arrange();
    std::vector<QCollatorSortKey> sortKeys() const;

    RecordTableSource &m_source;
    QList<Column> m_columns;
    std::vector<int> m_recordRows; ///< By row of the table.
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
