#pragma once

#include <QTableView>

class RecordTableModel;

/// The table of a record page: whole rows, one selected at most, sorted by a click on a column, a
/// third click gives the order of loading back. The columns first fit their contents; what the user
/// makes of them is remembered.
class RecordTable : public QTableView
{
    Q_OBJECT
    /// What an empty table says.
    Q_PROPERTY(QString emptyText MEMBER m_emptyText)

public:
    explicit RecordTable(QWidget *parent = nullptr);

    /// The name under which the user's settings keep the columns.
    void setRecords(RecordTableModel &model, const QString &settingsName);

    int selectedRow() const; ///< The record row, see RecordTableModel; -1 where none is selected.
    void selectRecord(int recordRow);

    /// Gives the columns the widths that the user chose, or else those of the first rows' texts.
    /// Does so once, as soon as there are rows.
    void fitColumns();

Q_SIGNALS:
    void returnPressed();
    void deletePressed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    const RecordTableModel &records() const;
    void rememberWidth(int column, int oldWidth, int newWidth);
    QString widthKey(int column) const;

    QString m_emptyText;
    QString m_settingsName;
    bool m_columnsFit = false;
};
