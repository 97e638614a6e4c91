#pragma once

#include "CommandRunner.h"

/// Lets the desktop's file manager show something. A page does not work at that, so these runs are
/// not jobs: no row is marked for them and nothing is said when they end. A file manager that does
/// not answer is not waited for. Interface thread only.
class FileManager
{
public:
    void showFolder(const QString &folder); ///< Shows what is in the folder.
    void showItem(const QString &item); ///< Shows the item, selected, in its folder.

private:
    QObject m_keeper;
    CommandRunner m_runner{m_keeper};
};
