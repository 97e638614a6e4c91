#include "RecordTable.h"

#include <QCollator>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QSettings>
#include <QSortFilterProxyModel>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

constexpr int rowPadding = 12;
// The width of a column that the user has not changed.
constexpr int minFittedWidth = 160;
constexpr int maxFittedWidth = 360;

/// The source's records in the order in which they were loaded.
class RecordModel : public QAbstractTableModel
{
public:
    RecordModel(RecordTableSource &source, const QList<RecordTable::Column> &columns,
                QObject *parent)
        : QAbstractTableModel(parent), m_source(source), m_columns(columns)
    {
    }

    void reload()
    {
        beginResetModel();
        m_rowCount = m_source.numberOfRowsInTableView();
        endResetModel();
    }

    int rowCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : m_rowCount;
    }
    int columnCount(const QModelIndex &parent) const override
    {
        return parent.isValid() ? 0 : int(m_columns.size());
    }
    QVariant data(const QModelIndex &index, int role) const override
    {
        if (role != Qt::DisplayRole || !index.isValid())
            return {};
        return m_source.objectValueForTableColumn(m_columns.at(index.column()).identifier,
                                                  index.row());
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
            return int(Qt::AlignLeading | Qt::AlignVCenter);
        if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
            return m_columns.value(section).title;
        return QAbstractTableModel::headerData(section, orientation, role);
    }

private:
    RecordTableSource &m_source;
    const QList<RecordTable::Column> m_columns;
    int m_rowCount = 0;
};

/// Compares texts as the user's language does, and numbers within them by value.
class SortedRecords : public QSortFilterProxyModel
{
public:
    SortedRecords(RecordModel &records, QObject *parent) : QSortFilterProxyModel(parent)
    {
        setSourceModel(&records);
        connect(&records, &RecordModel::modelAboutToBeReset, this, [this] { m_sortKeys.clear(); });
    }

    void sort(int column, Qt::SortOrder order) override
    {
        m_sortKeys.clear();
        QSortFilterProxyModel::sort(column, order);
    }

protected:
    bool lessThan(const QModelIndex &left, const QModelIndex &right) const override
    {
        if (m_sortKeys.empty())
            makeSortKeys(left.column());
        return m_sortKeys[std::size_t(left.row())] < m_sortKeys[std::size_t(right.row())];
    }

private:
    /// One key for each record: comparing texts by language is far slower than comparing keys.
    void makeSortKeys(int column) const
    {
        QCollator collator;
        collator.setNumericMode(true);
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        const int count = sourceModel()->rowCount();
        m_sortKeys.reserve(std::size_t(count));
        for (int row = 0; row < count; ++row)
            m_sortKeys.push_back(
                collator.sortKey(sourceModel()->index(row, column).data().toString()));
    }

    mutable std::vector<QCollatorSortKey> m_sortKeys; ///< By record; empty until they are needed.
};

} // namespace

RecordTable::RecordTable(QWidget *parent) : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + rowPadding);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setResizeContentsPrecision(0); // only rows in sight are measured
    horizontalHeader()->setSortIndicatorClearable(true);
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
}

void RecordTable::setRecords(RecordTableSource &source, const QList<Column> &columns,
                             const QString &settingsName)
{
    m_settingsName = settingsName;
    m_rows = new SortedRecords(*new RecordModel(source, columns, this), this);
    setModel(m_rows);
    setSortingEnabled(true);
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &RecordTable::unfocusUnselected);
}

void RecordTable::setEmptyText(const QString &text)
{
    m_emptyText = text;
    viewport()->update();
}

// QTableView gives the focus to the first row without selecting it. An arrow key would then go to
// the second row, or nowhere if there is only one.
void RecordTable::focusInEvent(QFocusEvent *event)
{
    QTableView::focusInEvent(event);
    unfocusUnselected();
}

void RecordTable::unfocusUnselected()
{
    if (!selectionModel()->hasSelection())
        selectionModel()->clearCurrentIndex();
}

void RecordTable::reloadRecords()
{
    static_cast<RecordModel *>(m_rows->sourceModel())->reload();
    fitColumns();
}

int RecordTable::selectedRecord() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : m_rows->mapToSource(rows.first()).row();
}

void RecordTable::selectRecord(int record)
{
    const QModelIndex index = m_rows->mapFromSource(m_rows->sourceModel()->index(record, 0));
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    scrollTo(index);
}

/// Once, as soon as there are rows: the widths that the user chose, or else those of the first
/// rows' texts. They are kept as plain numbers because a damaged QHeaderView::saveState() makes
/// restoreState() crash.
void RecordTable::fitColumns()
{
    if (m_areColumnsFitted || m_rows->rowCount() == 0)
        return;
    m_areColumnsFitted = true;
    const int last = m_rows->columnCount() - 1; // takes the rest of the room
    for (int column = 0; column < last; ++column) {
        const int fitted =
            std::clamp(sizeHintForColumn(column) + 2 * rowPadding, minFittedWidth, maxFittedWidth);
        const int chosen = QSettings().value(widthKey(column)).toInt();
        setColumnWidth(column, chosen > 0 ? std::min(chosen, QWIDGETSIZE_MAX) : fitted);
    }
    connect(horizontalHeader(), &QHeaderView::sectionResized, this,
            [this, last](int column, int, int width) {
                if (column < last)
                    QSettings().setValue(widthKey(column), width);
            });
}

QString RecordTable::widthKey(int column) const
{
    return m_settingsName + u"/ColumnWidth"_s + QString::number(column);
}

void RecordTable::keyPressEvent(QKeyEvent *event)
{
    const bool isPlain = !(event->modifiers() & ~Qt::KeypadModifier) && !event->isAutoRepeat();
    if (isPlain && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        Q_EMIT returnPressed();
    else if (isPlain && event->key() == Qt::Key_Delete)
        Q_EMIT deletePressed();
    else
        QTableView::keyPressEvent(event);
}

void RecordTable::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (model() && model()->rowCount() > 0)
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect().adjusted(rowPadding, rowPadding, -rowPadding, -rowPadding),
                     int(Qt::AlignCenter) | Qt::TextWordWrap, m_emptyText);
}
