#pragma once

#include "FileManager.h"

#include <QPushButton>

/// Shows the file that a page has just made in the file manager. Hidden until there is one; its
/// space on the page is kept. Its texts are its own.
class ShowInFolderButton : public QPushButton
{
    Q_OBJECT

public:
    explicit ShowInFolderButton(QWidget *parent = nullptr);

    void offer(const QString &file); ///< A run has made this file: the button appears.
    void withdraw(); ///< There is nothing to show any more: the button goes.

private:
    QString m_file;
    FileManager m_fileManager;
};
