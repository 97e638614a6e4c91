#include "AppsTable.h"

#include "AppIcons.h"
#include "AppsList.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

const std::array<QString, 4> identifiers{u"Icon"_s, u"Name"_s, u"Desc"_s, u"Type"_s};
constexpr qsizetype maxText = 500; // characters
constexpr qsizetype maxUnbroken = 40;

// Only markup is broken into lines, and a description may be long.
QString paragraph(const QString &text)
{
    return text.isEmpty() ? QString() : u"<p>%1</p>"_s.arg(text.toHtmlEscaped());
}

// What would be opened, byte for byte, so that no letter of another script looks like one of its
// own; with places at which a line can be broken.
QString shownAddress(const QString &text)
{
    QString address = QString::fromLatin1(addressToOpen(text).toEncoded());
    if (address.size() > maxText)
        address = address.first(maxText) + u'…';
    for (qsizetype at = maxUnbroken; at < address.size(); at += maxUnbroken + 1)
        address.insert(at, QChar(0x200b));
    return address;
}

} // namespace

AppsTable::AppsTable(AppIcons &icons, QObject *parent) : QAbstractTableModel(parent), m_icons(icons)
{
    connect(&m_icons, &AppIcons::arrived, this, &AppsTable::showIcon);
}

void AppsTable::setApps(const QVariantList &apps)
{
    beginResetModel();
    m_apps = apps;
    endResetModel();
}

void AppsTable::setTitle(Column column, const QString &title)
{
    m_titles.at(column) = title;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

QString AppsTable::text(const QString &key, int row) const
{
    const QVariant value = m_apps.at(row).toMap().value(key);
    if (value.metaType() != QMetaType::fromType<QString>())
        return {};
    return value.toString().left(maxText).simplified();
}

QVariant AppsTable::objectValueForTableColumn(const QString &identifier, int row) const
{
    if (identifier == identifiers[IconColumn])
        return m_icons.icon(text(identifier, row));
    const bool isKnown = std::ranges::find(identifiers, identifier) != identifiers.end();
    return isKnown ? text(identifier, row) : QVariant();
}

int AppsTable::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : numberOfRowsInTableView();
}

int AppsTable::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(identifiers.size());
}

QVariant AppsTable::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const QString &identifier = identifiers.at(static_cast<std::size_t>(index.column()));
    if (index.column() == IconColumn) {
        if (role == Qt::DecorationRole)
            return objectValueForTableColumn(identifier, index.row());
        if (role == Qt::AccessibleTextRole)
            return text(identifiers[NameColumn], index.row());
    } else if (role == Qt::DisplayRole) {
        return objectValueForTableColumn(identifier, index.row());
    }
    return role == Qt::ToolTipRole ? toolTip(identifier, index.row()) : QVariant();
}

QString AppsTable::toolTip(const QString &identifier, int row) const
{
    const QString address = m_apps.at(row).toMap().value(u"URL"_s).toString();
    const QString cell = identifier == identifiers[IconColumn] ? QString() : text(identifier, row);
    return paragraph(cell) + paragraph(shownAddress(address));
}

QVariant AppsTable::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0
        || section >= columnCount())
        return {};
    return m_titles.at(static_cast<std::size_t>(section));
}

void AppsTable::showIcon(const QString &name)
{
    for (int row = 0; row < numberOfRowsInTableView(); ++row) {
        if (text(identifiers[IconColumn], row) != name)
            continue;
        const QModelIndex cell = index(row, IconColumn);
        Q_EMIT dataChanged(cell, cell, {Qt::DecorationRole});
    }
}
