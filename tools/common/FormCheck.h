#pragma once

#include <QString>

/// What the pages' checks of their forms share. Interface thread only.
namespace FormCheck
{

/// Whether anything stands at the path. A link that leads nowhere counts: its name is taken, too.
bool itemExists(const QString &path);

/// Says in one message box why the form cannot run, both texts given by their keys. Always false,
/// so that a check can end with it.
bool refuse(const char *messageKey, const char *informativeKey = nullptr);

} // namespace FormCheck
