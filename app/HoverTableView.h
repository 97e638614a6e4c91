#pragma once

#include <QListView>

class HoverTableRowView;

/// The sidebar's list. Each row is a HoverTableRowView placed over the model's index, so that
/// selection, keyboard and accessibility are those of any list; below the last row the list draws
/// separator lines where the bottoms of further rows would be.
class HoverTableView : public QListView
{
    Q_OBJECT

public:
    /// Roles of the model, beside the row's name (Qt::DisplayRole).
    enum Role {
        ImageNameRole = Qt::UserRole ///< Name of one of the application's own images.
    };

    explicit HoverTableView(QWidget *parent = nullptr);

    /// Bottom edge of the last row in the viewport's coordinates; 0 without rows.
    double yPositionPastLastRow() const;
    int rowHeight() const; ///< In pixels; grows with the font.
    /// Null if the list has no such row.
    HoverTableRowView *rowView(int row) const;
    /// Whether the list shows a part of the row. As long as it was not shown itself, it does.
    bool isInView(int row) const;

    /// Makes the row views. The rows of the model must not change afterwards.
    void setModel(QAbstractItemModel *model) override;
    void keyboardSearch(const QString &search) override;

protected:
    void changeEvent(QEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    /// Every click selects a row or nothing changes: a page is always shown.
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;

private:
    int rowCount() const;
    void insertRowViews();
    /// The separator lines below the last row.
    void drawGridInClipRect();
    void chooseFirst(); ///< The current row, if there is one.
    void setKeyboardIsHere(bool here);
    /// Shows selection and focus ring in the rows as they are now.
    void updateRowViews();

    bool m_keyboardIsHere = false; ///< The focus came by keyboard, not by the pointer.
};
