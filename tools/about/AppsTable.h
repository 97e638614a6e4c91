#pragma once

#include <QAbstractTableModel>
#include <QVariantList>

#include <array>

class AppIcons;

/// The listed applications as rows. What a server wrote comes out as plain text on one line; its
/// tool tips are escaped, because the toolkit would take them for markup. Each tool tip ends with
/// the address that its row opens.
class AppsTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { IconColumn, NameColumn, DescColumn, TypeColumn };

    /// `icons` must outlive the table.
    explicit AppsTable(AppIcons &icons, QObject *parent = nullptr);

    /// Dictionaries with the keys "Icon", "Name", "Desc", "Type" and "URL".
    void setApps(const QVariantList &apps);
    /// The column's header.
    void setTitle(Column column, const QString &title);

    int numberOfRowsInTableView() const { return static_cast<int>(m_apps.size()); }
    /// By the column's identifier: for "Icon" the image, which may be null; for "Name", "Desc" and
    /// "Type" the entry's text; nothing for any other.
    QVariant objectValueForTableColumn(const QString &identifier, int row) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const QString &key, int row) const;
    QString toolTip(const QString &identifier, int row) const;
    void showIcon(const QString &name);

    AppIcons &m_icons;
    QVariantList m_apps;
    std::array<QString, 4> m_titles;
};
