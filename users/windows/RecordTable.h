#pragma once

#include <QTableView>

class QAbstractProxyModel;

/// The page that supplies the rows of a record table.
class RecordTableSource
{
public:
    virtual int numberOfRowsInTableView() const = 0;
    /// The text of one cell. The row is the record's position in the page's list, whatever order
    /// the table shows.
    virtual QString objectValueForTableColumn(const QString &column, int row) = 0;

protected:
    ~RecordTableSource() = default;
};

/// The table of a record page. At most one row is selected, and no other row has the focus. A click
/// on a header sorts by that column, a second one reverses the order, a third one restores the
/// order in which the records were loaded. Rows are given to callers by the record's position in
/// that order.
class RecordTable : public QTableView
{
    Q_OBJECT
    /// Shown in place of rows while there are none.
    Q_PROPERTY(QString emptyText MEMBER m_emptyText WRITE setEmptyText)

public:
    struct Column {
        QString identifier; ///< What the source is called with.
        QString title;
    };

    explicit RecordTable(QWidget *parent = nullptr);

    /// Shows the records of the source, which must outlive the table. Column widths that the user
    /// changes are kept in the settings under this name. Call it once.
    void setRecords(RecordTableSource &source, const QList<Column> &columns,
                    const QString &settingsName);
    /// Reads all rows again and keeps the order. The selection is lost.
    void reloadRecords();

    int selectedRecord() const; ///< -1 if none is selected.
    void setEmptyText(const QString &text);
    void selectRecord(int record); ///< Scrolls to it. Nothing if there is no such record.

Q_SIGNALS:
    void returnPressed();
    void deletePressed();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void unfocusUnselected();
    void fitColumns();
    QString widthKey(int column) const;

    QString m_emptyText;
    QString m_settingsName;
    QAbstractProxyModel *m_rows = nullptr; ///< Between the table's rows and the records.
    bool m_areColumnsFitted = false;
};
