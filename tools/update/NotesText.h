#pragma once

#include <QString>

/// The text of HTML notes, one line for each block of them, "• " before each item of a list; styles
/// and scripts are left out. Not a parser of HTML, but a single pass over it, because notes come
/// from a server and a true layout of some kilobytes of nested tables takes half a minute and
/// gigabytes. Any thread.
QString plainTextOfNotes(QStringView html);
