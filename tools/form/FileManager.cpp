#include "FileManager.h"

using namespace Qt::StringLiterals;

Command FileManager::commandForFolder(const QString &folder)
{
    return {.launchPath = u"/usr/bin/open"_s, .arguments = {u"-a"_s, u"Finder"_s, folder}};
}

Command FileManager::commandForItem(const QString &item)
{
    return {.launchPath = u"/usr/bin/open"_s, .arguments = {u"-R"_s, item}};
}

void FileManager::ask(const Command &command)
{
    m_runner.run(command, {.page = {}, .title = u"open"_s});
}
