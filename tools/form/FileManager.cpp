#include "FileManager.h"

using namespace Qt::StringLiterals;

void FileManager::showFolder(const QString &folder)
{
    m_runner.run({.launchPath = u"/usr/bin/open"_s, .arguments = {u"-a"_s, u"Finder"_s, folder}});
}

void FileManager::showItem(const QString &item)
{
    m_runner.run({.launchPath = u"/usr/bin/open"_s, .arguments = {u"-R"_s, item}});
}
