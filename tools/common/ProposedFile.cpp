#include "ProposedFile.h"

#include "FormCheck.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

// A folder's name has no suffix, whatever dots it holds.
static QString nameOf(const QString &path)
{
    const QFileInfo item(QDir::cleanPath(QFileInfo(path).absoluteFilePath())); // "." has a name
    return item.isDir() ? item.fileName() : item.completeBaseName();
}

QString proposedFile(const QString &folder, const QString &source, const QString &suffix)
{
    QString name = nameOf(source.isEmpty() ? folder : source);
    if (name.isEmpty()) // the root folder
        name = QCoreApplication::applicationName();
    const QDir place(folder);
    QString file = place.filePath(name + u'.' + suffix);
    for (int number = 2; FormCheck::itemExists(file); ++number)
        file = place.filePath(u"%1 %2.%3"_s.arg(name, QString::number(number), suffix));
    return file;
}
