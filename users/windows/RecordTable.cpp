#include "RecordTable.h"

#include "RecordTableModel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QSettings>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

constexpr int rowPadding = 12;
constexpr int narrowest = 160;
constexpr int widest = 360; // of a column that nobody has touched

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

void RecordTable::setRecords(RecordTableModel &model, const QString &settingsName)
{
    m_settingsName = settingsName;
    setModel(&model);
    setSortingEnabled(true);
}

const RecordTableModel &RecordTable::records() const
{
    return static_cast<const RecordTableModel &>(*model());
}

int RecordTable::selectedRow() const
{
    const QModelIndexList rows = selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : records().recordRow(rows.first());
}

void RecordTable::selectRecord(int recordRow)
{
    const QModelIndex index = records().indexOfRecord(recordRow);
    if (!index.isValid())
        return;
    setCurrentIndex(index);
    scrollTo(index);
}

void RecordTable::fitColumns()
{
    if (m_columnsFit || model()->rowCount() == 0)
        return;
    m_columnsFit = true;
    const int last = model()->columnCount() - 1; // takes the rest of the room
    for (int column = 0; column < last; ++column) {
        const int fitting =
            std::clamp(sizeHintForColumn(column) + 2 * rowPadding, narrowest, widest);
        const int chosen = QSettings().value(widthKey(column)).toInt();
        setColumnWidth(column, chosen > 0 ? std::min(chosen, QWIDGETSIZE_MAX) : fitting);
    }
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, &RecordTable::rememberWidth);
}

void RecordTable::rememberWidth(int column, int, int newWidth)
{
    if (column < model()->columnCount() - 1)
        QSettings().setValue(widthKey(column), newWidth);
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
