#pragma once

#include <QString>

/// Opens an address that a server sent in the user's browser or mail program. Anything that is
/// neither a web nor a mail address opens nothing: no file, no script, no other program's scheme.
/// Interface thread only.
void openSafely(const QString &address);
