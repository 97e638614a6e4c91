#pragma once

#include <QString>

/// What to set as a tool tip so that it shows the text as it stands: a path that looks like markup
/// would be shown as such. Any thread.
QString plainToolTip(const QString &text);
