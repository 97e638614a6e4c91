#include "FileNames.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

// A folder's name has no suffix, whatever dots it holds.
static QString nameOf(const QString &path)
{
    const QFileInfo item(QDir::cleanPath(QFileInfo(path).absoluteFilePath())); // "." has a name
    return item.isDir() ? item.fileName() : item.completeBaseName();
}

bool endsInSuffix(const QString &path, const QStringList &suffixes)
{
    return std::ranges::any_of(suffixes, [&path](const QString &suffix) {
        return path.endsWith(u'.' + suffix, Qt::CaseInsensitive);
    });
}

bool itemExists(const QString &path)
{
    const QFileInfo item(path);
    return item.exists() || item.isSymbolicLink();
}

QString proposedFile(const QString &folder, const QString &source, const QString &suffix)
{
    QString name = nameOf(source.isEmpty() ? folder : source);
    if (name.isEmpty()) // the root folder
        name = QCoreApplication::applicationName();
    const QDir place(folder);
    QString file = place.filePath(name + u'.' + suffix);
    for (int number = 2; itemExists(file); ++number)
        file = place.filePath(u"%1 %2.%3"_s.arg(name, QString::number(number), suffix));
    return file;
}
