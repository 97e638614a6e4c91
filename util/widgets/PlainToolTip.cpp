#include "PlainToolTip.h"

#include <QTextDocument>

using namespace Qt::StringLiterals;

// Only where it must: markup is broken into lines wherever it has a blank.
QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text)
        ? u"<qt>%1</qt>"_s.arg(text.toHtmlEscaped().replace(u'\n', u"<br>"_s))
        : text;
}
