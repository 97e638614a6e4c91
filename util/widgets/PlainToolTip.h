#pragma once

#include <QString>
#include <QTextDocument>

/// What to set as a tool tip so that it shows the text exactly as given: a path that looks like
/// markup would be shown as markup. Other texts stay as they are, because markup is broken into
/// lines at every blank. Any thread.
inline QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text)
        ? QStringLiteral("<qt>%1</qt>")
              .arg(text.toHtmlEscaped().replace(u'\n', QStringLiteral("<br>")))
        : text;
}
