#include "WebService.h"

#include "DB.h"

#include <QRegularExpression>
#include <QUrl>

using namespace Qt::StringLiterals;

WebService::WebService(const QString &address) : m_place(address)
{
    // One slash behind the colon is enough, and the last "@" before the path counts, as for
    // libcurl.
    static const QRegularExpression withUserInfo(u"^([A-Za-z]+:/+)([^/?#]*)@"_s);
    const QRegularExpressionMatch match = withUserInfo.match(address);
    if (!match.hasMatch())
        return;
    m_place.remove(match.capturedStart(2), match.capturedLength(2) + 1);
    QUrl url;
    url.setUserInfo(match.captured(2), QUrl::TolerantMode);
    const QString both = url.userName(QUrl::FullyDecoded) + u':' + url.password(QUrl::FullyDecoded);
    m_authorization = "Authorization: Basic " + both.toUtf8().toBase64();
}

HttpRequest WebService::request(const QByteArray &address, const QList<QByteArray> &headers) const
{
    HttpRequest request{address, headers, DB::webServiceLimits()};
    if (!m_authorization.isEmpty())
        request.headers.append(m_authorization);
    request.limits.keepsMethod = true;
    request.keepsConnection = true;
    return request;
}

HttpRequest WebService::healthRequest() const
{
    return request(m_place.toUtf8() + "healthz");
}
