#pragma once

#include "MiscTool.h"
#include "SampleTree.h"
#include "StoredGrant.h"

#include <QCoreApplication>
#include <QFile>
#include <QSettings>
#include <QUrl>

#include <filesystem>

/// The home folder of this run's user, fresh for each test.
namespace TestHome
{

inline QByteArray path()
{
    return QFile::encodeName(MiscTool::getUserHome());
}

/// Takes away what an earlier test left, settings included.
inline void reset()
{
    if (!SampleTree::whyUnsafe().isEmpty())
        qFatal("%s", qPrintable(SampleTree::whyUnsafe()));
    QCoreApplication::setOrganizationName(QLatin1String("Toolvane"));
    QCoreApplication::setApplicationName(QLatin1String("UserCacheTest"));
    QSettings().clear();
    for (const auto &item : std::filesystem::directory_iterator(path().toStdString())) {
        if (item.path().filename() != ".config")
            std::filesystem::remove_all(item); // of a link, the link alone
    }
}

inline void grant()
{
    const QUrl home = QUrl::fromLocalFile(MiscTool::getUserHome());
    StoredGrant::store(MiscTool::bookmarkForURL(home).value_or(QByteArray()));
}

inline void makeFile(const QByteArray &relative, int bytes)
{
    SampleTree::makeFile(path() + '/' + relative, QByteArray(bytes, 'x'));
}

inline bool exists(const QByteArray &relative)
{
    return SampleTree::exists(path() + '/' + relative);
}

} // namespace TestHome
