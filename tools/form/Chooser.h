#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

/// Choosers that a page shows as sheets on its window. They return at once; `chosen` is called on
/// OK with an absolute path, `cancelled`, if given, on anything else. Neither is called once the
/// page is gone; the sheet goes with it. Interface thread only.
///
/// The sheets' object names are `folderChooser`, `fileChooser` and `saveChooser`. Each starts where
/// it was last used on this page, which the user's settings keep by the page's object name, else in
/// the user's folder for such files. A folder is selected in the one that it lies in.
namespace Chooser
{

using Chosen = std::function<void(const QString &path)>;
using Cancelled = std::function<void()>;

/// One existing folder. With a start folder that exists the chooser starts there and remembers
/// nothing.
void chooseFolder(QWidget *page, Chosen chosen, const QString &startFolder = {},
                  Cancelled cancelled = {});

/// One existing file whose name ends in one of the suffixes ("zip", without the dot), in lower or
/// upper case.
void chooseFile(QWidget *page, const QStringList &suffixes, Chosen chosen);

/// A file to write. The path that `chosen` gets always ends in the suffix: it is added to a name
/// typed without it. Qt's own chooser lets nobody create folders there, rename or delete; a
/// desktop's may. With the path of a source the chooser proposes a free name like the source's, and
/// starts beside the source when it was not used before.
void chooseSaveFile(QWidget *page, const QString &suffix, Chosen chosen,
                    const QString &source = {});

} // namespace Chooser
