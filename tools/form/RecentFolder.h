#pragma once

#include <QString>

class QWidget;

/// The folders that a page's choosers were last used in, kept in the user's settings. A page's
/// object name and a chooser's name together say what a folder was used for. Interface thread only.
namespace RecentFolder
{

/// Empty where none was used yet, or where that folder is gone.
QString find(const QWidget &page, const QString &chooser);
void remember(const QWidget &page, const QString &chooser, const QString &folder);

} // namespace RecentFolder
