#include "RecordTableModel.h"

#include <algorithm>
#include <numeric>

RecordTableModel::RecordTableModel(RecordTableSource &source, QObject *parent)
    : QAbstractTableModel(parent), m_source(source)
{
}

void RecordTableModel::setColumns(const QList<Column> &columns)
{
    beginResetModel();
    m_columns = columns;
    endResetModel();
}

void RecordTableModel::reloadData()
{
    beginResetModel();
    m_recordRows.resize(std::size_t(m_source.numberOfRowsInTableView()));
    arrange();
    endResetModel();
}

int RecordTableModel::recordRow(const QModelIndex &index) const
{
    return index.isValid() ? m_recordRows.at(std::size_t(index.row())) : -1;
}

QModelIndex RecordTableModel::indexOfRecord(int recordRow) const
{
    const auto found = std::ranges::find(m_recordRows, recordRow);
    return found == m_recordRows.end() ? QModelIndex()
                                       : index(int(found - m_recordRows.begin()), 0);
}

int RecordTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_recordRows.size());
}

int RecordTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant RecordTableModel::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid())
        return {};
    return m_source.objectValueForTableColumn(m_columns.at(index.column()).identifier,
                                              recordRow(index));
}

QVariant RecordTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
        return int(Qt::AlignLeading | Qt::AlignVCenter);
    if (role != Qt::DisplayRole)
        return {};
    if (orientation == Qt::Vertical)
        return section + 1;
    return m_columns.value(section).title;
}

void RecordTableModel::sort(int column, Qt::SortOrder order)
{
    m_sortColumn = column;
    m_sortOrder = order;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const std::vector<int> before = m_recordRows;
    arrange();
    std::vector<int> rowOfRecord(m_recordRows.size());
    for (std::size_t row = 0; row < m_recordRows.size(); ++row)
        rowOfRecord[std::size_t(m_recordRows[row])] = int(row);
    const QModelIndexList moved = persistentIndexList();
    for (const QModelIndex &from : moved) {
        const int recordRow = before[std::size_t(from.row())];
        changePersistentIndex(from, index(rowOfRecord[std::size_t(recordRow)], from.column()));
    }
    Q_EMIT layoutChanged({}, VerticalSortHint);
}

void RecordTableModel::arrange()
{
    std::iota(m_recordRows.begin(), m_recordRows.end(), 0);
    if (m_sortColumn < 0 || m_sortColumn >= m_columns.size())
        return;
    // One key for each record: comparing texts by language is far slower than comparing keys.
    const std::vector<QCollatorSortKey> keys = sortKeys();
    const auto comesFirst = [&](int a, int b) {
        return m_sortOrder == Qt::AscendingOrder ? keys[std::size_t(a)] < keys[std::size_t(b)]
                                                 : keys[std::size_t(b)] < keys[std::size_t(a)];
    };
    std::ranges::stable_sort(m_recordRows, comesFirst);
}

std::vector<QCollatorSortKey> RecordTableModel::sortKeys() const
{
    QCollator collator;
    collator.setNumericMode(true);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    const QString &column = m_columns.at(m_sortColumn).identifier;
    std::vector<QCollatorSortKey> keys;
    keys.reserve(m_recordRows.size());
    for (std::size_t row = 0; row < m_recordRows.size(); ++row)
        keys.push_back(collator.sortKey(m_source.objectValueForTableColumn(column, int(row))));
    return keys;
}
