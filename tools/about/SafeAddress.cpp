#include "SafeAddress.h"

#include <QDesktopServices>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace
{

constexpr qsizetype longest = 2048;

bool isSafe(const QUrl &url)
{
    const bool isWeb = url.scheme() == "http"_L1 || url.scheme() == "https"_L1;
    return url.isValid()
        && ((isWeb && !url.host().isEmpty())
            || (url.scheme() == "mailto"_L1 && !url.path().isEmpty()));
}

} // namespace

void openSafely(const QString &address)
{
    QUrl url(address.left(longest));
    if (url.scheme() == "mailto"_L1)
        url.setQuery(QString()); // which could name files of the user's to send along
    if (isSafe(url))
        QDesktopServices::openUrl(url);
}
