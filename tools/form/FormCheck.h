#pragma once

#include <QString>

/// What the pages' checks of their forms share. Interface thread only.
namespace FormCheck
{

/// Says in one message box why the form cannot run, both texts given by their keys. Always false,
/// so that a check can end with it.
bool refuse(const char *messageKey, const char *informativeKey = nullptr);

} // namespace FormCheck
