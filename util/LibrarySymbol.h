#pragma once

#include <QLibrary>

/// Finds one function of a library that is loaded at its first use, because linking it would slow
/// down every start. False, and a null function, if the library or the name is missing.
/// Any thread.
template <class Function>
bool resolveSymbol(QLibrary &library, const char *name, Function *&function)
{
    function = reinterpret_cast<Function *>(library.resolve(name));
    return function != nullptr;
}
