#include "RecentFolder.h"

#include <QFileInfo>
#include <QSettings>
#include <QWidget>

using namespace Qt::StringLiterals;

static QString keyOf(const QWidget &page, const QString &chooser)
{
    return u"RecentFolders/%1/%2"_s.arg(page.objectName(), chooser);
}

QString RecentFolder::find(const QWidget &page, const QString &chooser)
{
    const QString folder = QSettings().value(keyOf(page, chooser)).toString();
    return QFileInfo(folder).isDir() ? folder : QString();
}

void RecentFolder::remember(const QWidget &page, const QString &chooser, const QString &folder)
{
    QSettings().setValue(keyOf(page, chooser), folder);
}
