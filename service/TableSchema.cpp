#include "TableSchema.h"

#include "PropertyList.h"

#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

/// The columns whose values the application looks for before it adds a record. Two desktops can
/// look at the same moment, so the service looks again.
constexpr std::pair<std::string_view, std::string_view> nameColumns[] = {{"User", "User"},
                                                                         {"UserGroup", "Name"}};

char lowered(char character)
{
    return character >= 'A' && character <= 'Z' ? char(character + ('a' - 'A')) : character;
}

ColumnSchema columnOf(const QString &definition)
{
    const QString type = definition.section(u' ', 1, 1);
    if (type != "INTEGER"_L1 && type != "TEXT"_L1)
        qFatal("a column of an unknown kind: %s", qUtf8Printable(definition));
    return {definition.section(u' ', 0, 0).toStdString(),
            type == "TEXT"_L1 ? ColumnKind::Text : ColumnKind::Integer, definition.toStdString()};
}

TableSchema tableOf(const QString &name)
{
    const auto description = PropertyList::readDictionaryFile(":/schema/"_L1 + name + ".plist"_L1);
    if (!description)
        qFatal("no description of the table %s", qUtf8Printable(name));
    TableSchema table{name.toStdString(), {}, {}, -1};
    for (const QString &definition : description->value(u"Fields"_s).toStringList())
        table.columns.push_back(columnOf(definition));
    for (const QString &column : description->value(u"Indexes"_s).toStringList())
        table.indexes.push_back(column.toStdString());
    for (const auto &[of, column] : nameColumns) {
        if (table.name == of)
            table.nameColumn = table.columnNamed(column);
    }
    return table;
}

} // namespace

bool isSameName(std::string_view a, std::string_view b)
{
    return std::ranges::equal(a, b, {}, lowered, lowered);
}

int TableSchema::columnNamed(std::string_view column) const
{
    const auto found = std::ranges::find_if(
        columns, [column](const ColumnSchema &one) { return isSameName(one.name, column); });
    return found == columns.end() ? -1 : int(found - columns.begin());
}

std::vector<TableSchema> TableSchema::readAll()
{
    std::vector<TableSchema> tables;
    const QStringList names =
        QDir(u":/schema"_s).entryList({u"*.plist"_s}, QDir::Files, QDir::Name);
    for (const QString &name : names)
        tables.push_back(tableOf(name.chopped(qsizetype(sizeof ".plist") - 1)));
    return tables;
}
