#include "HoverTableView.h"

#include "HoverTableRowView.h"
#include "Theme.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QStyledItemDelegate>

namespace
{

constexpr int minRowHeight = 44;
constexpr int roomAroundText = 24;

// The row views draw everything; the list itself needs only the height of a row.
class RowHeightDelegate : public QStyledItemDelegate
{
public:
    explicit RowHeightDelegate(HoverTableView *view) : QStyledItemDelegate(view), m_view(view) { }

    void paint(QPainter *, const QStyleOptionViewItem &, const QModelIndex &) const override { }
    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return {0, m_view->rowHeight()};
    }

private:
    HoverTableView *m_view;
};

} // namespace

HoverTableView::HoverTableView(QWidget *parent) : QListView(parent)
{
    setItemDelegate(new RowHeightDelegate(this));
    setUniformItemSizes(true);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    viewport()->setBackgroundRole(QPalette::Window);
    setAutoFillBackground(true); // below the scroll bar, too
    setPalette(Theme::sidebarPalette(Theme::current()));
}

int HoverTableView::rowCount() const
{
    return model() ? model()->rowCount() : 0; // the model may go before the list
}

int HoverTableView::rowHeight() const
{
    return qMax(minRowHeight, fontMetrics().height() + roomAroundText);
}

double HoverTableView::yPositionPastLastRow() const
{
    if (rowCount() == 0)
        return 0;
    const QRect last = visualRect(model()->index(rowCount() - 1, 0));
    return last.y() + last.height();
}

HoverTableRowView *HoverTableView::rowView(int row) const
{
    return qobject_cast<HoverTableRowView *>(indexWidget(model()->index(row, 0)));
}

bool HoverTableView::isInView(int row) const
{
    return !isVisible() || visualRect(model()->index(row, 0)).intersects(viewport()->rect());
}

void HoverTableView::setModel(QAbstractItemModel *newModel)
{
    QListView::setModel(newModel);
    insertRowViews();
}

void HoverTableView::insertRowViews()
{
    for (int row = 0; row < model()->rowCount(); ++row) {
        const QModelIndex index = model()->index(row, 0);
        setIndexWidget(index,
                       new HoverTableRowView(index.data(ImageNameRole).toString(),
                                             index.data(Qt::DisplayRole).toString()));
    }
}

void HoverTableView::changeEvent(QEvent *event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange) // its own ends here: an equal palette is no change
        setPalette(Theme::sidebarPalette(Theme::current()));
}

void HoverTableView::paintEvent(QPaintEvent *event)
{
    QListView::paintEvent(event);
    drawGridInClipRect();
}

void HoverTableView::resizeEvent(QResizeEvent *event)
{
    QListView::resizeEvent(event);
    const int pastLastRow = qRound(yPositionPastLastRow());
    if (viewport()->height() > pastLastRow)
        viewport()->update(0, pastLastRow, viewport()->width(), viewport()->height() - pastLastRow);
}

void HoverTableView::selectionChanged(const QItemSelection &selected,
                                      const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    updateRowViews();
}

void HoverTableView::drawGridInClipRect()
{
    QPainter painter(viewport());
    double y = yPositionPastLastRow() + rowHeight();
    while (y < viewport()->height()) {
        painter.fillRect(QRectF(0, y, viewport()->width(), 1.0),
                         HoverTableRowView::separatorGradient());
        y += rowHeight();
    }
}

// A page is shown as long as the window is: no click leaves the list without a choice.
QItemSelectionModel::SelectionFlags HoverTableView::selectionCommand(const QModelIndex &index,
                                                                     const QEvent *) const
{
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void HoverTableView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QListView::currentChanged(current, previous);
    updateRowViews();
}

void HoverTableView::focusInEvent(QFocusEvent *event)
{
    QListView::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    setKeyboardIsHere(reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason);
}

void HoverTableView::focusOutEvent(QFocusEvent *event)
{
    QListView::focusOutEvent(event);
    setKeyboardIsHere(false);
}

void HoverTableView::chooseFirst()
{
    const QModelIndex first = currentIndex().isValid() ? currentIndex() : model()->index(0, 0);
    scrollTo(first);
    setCurrentIndex(first);
}

// As long as no tool is chosen, the first arrow key chooses the current row instead of the next.
void HoverTableView::keyPressEvent(QKeyEvent *event)
{
    const bool isArrow = event->key() == Qt::Key_Up || event->key() == Qt::Key_Down;
    if (isArrow && rowCount() > 0 && !selectionModel()->hasSelection())
        chooseFirst();
    else
        QListView::keyPressEvent(event);
    setKeyboardIsHere(true);
}

// What a key chooses is scrolled into view before it is chosen.
QModelIndex HoverTableView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex next = QListView::moveCursor(action, modifiers);
    scrollTo(next);
    return next;
}

// Here it cannot be known before, so the row is chosen once more.
void HoverTableView::keyboardSearch(const QString &search)
{
    const QModelIndex before = currentIndex();
    QListView::keyboardSearch(search);
    if (const QModelIndex found = currentIndex(); found != before) {
        selectionModel()->clearSelection();
        scrollTo(found);
        setCurrentIndex(found);
    }
}

void HoverTableView::mousePressEvent(QMouseEvent *event)
{
    QListView::mousePressEvent(event);
    setKeyboardIsHere(false);
}

void HoverTableView::setKeyboardIsHere(bool here)
{
    m_keyboardIsHere = here;
    updateRowViews();
}

void HoverTableView::updateRowViews()
{
    for (int row = 0; row < rowCount(); ++row) {
        if (HoverTableRowView *view = rowView(row)) {
            view->setSelected(selectionModel()->isRowSelected(row));
            view->setFocusRing(m_keyboardIsHere && currentIndex().row() == row);
        }
    }
}
