#pragma once

#include "CommandRunner.h"

/// Asks the desktop's file manager to show something. That is nothing a page works at, so these
/// runs stand in a list of their own: no row is marked for them and nothing is said when they end.
/// A file manager that does not answer is left alone with it. Interface thread only.
class FileManager
{
public:
    /// What runs for the two operations below.
    static Command commandForFolder(const QString &folder);
    static Command commandForItem(const QString &item);

    /// Shows what is in the folder.
    void showFolder(const QString &folder) { ask(commandForFolder(folder)); }
    /// Shows the folder that the item lies in, with the item selected.
    void showItem(const QString &item) { ask(commandForItem(item)); }

private:
    void ask(const Command &command);

    JobList m_jobs;
    CommandRunner m_runner{m_jobs};
};
