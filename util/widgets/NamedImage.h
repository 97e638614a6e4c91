#pragma once

#include <QIcon>
#include <QString>

/// The application's own images by name. Interface thread only.
///
/// Drawings of `resources/images/symbols` have no colour of their own: they are painted in the text
/// colour of the widget that shows them (of the application's palette if the widget is not known,
/// as with a button's icon), dimmed if disabled, in the highlighted text's colour if selected.
/// Drawings of `resources/images/pictures` keep their colours. Nothing is read or rendered before
/// the first paint; a change of palette or scale shows with the next paint. The sizes that the
/// program starts with were drawn when it was built (see `resources/CMakeLists.txt`).

/// Whether the application has an image of this name. Names come from a server, too: one that holds
/// anything but letters, digits, "-" and "_" is treated as unknown.
bool hasNamedImage(const QString &name);

/// The image of this name; a null icon if there is none.
QIcon namedImage(const QString &name);
