// The web-service form of BLGeneral. Every request is a POST. Which part of it is percent-escaped
// differs from request to request, and the services rely on that.

#include "BLGeneral.h"
#include "LeadingNumber.h"
#include "MiscTool.h"
#include "SchemaReflect.h"
#include "WebService.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace
{

/// The body of the reply; empty unless it came whole. The HTTP status is ignored: the services
/// write their own into the body.
QByteArray post(const HttpRequest &request, QByteArrayView body)
{
    HttpReply reply = httpPost(request, body);
    if (reply.end == HttpReply::End::TooLarge)
        MiscTool::printMsg(u"BLGeneral"_s, u"post"_s, u"the reply is too large"_s);
    return std::move(reply.body);
}

/// An address, or a part of one, as it is sent: in contrast to a stored text, a "#" stays.
QString escaped(const QString &address)
{
    return MiscTool::encode2UTF8(address).replace("%23"_L1, "#"_L1); // a "%23" of it is "%2523" now
}

int integerValue(const QVariant &value)
{
    return value.metaType() == QMetaType::fromType<QString>()
        ? leadingInteger(value.toString().toUtf8())
        : value.toInt();
}

} // namespace

QString BLGeneral::getWebServiceURL() const
{
    return DB::getWebServiceURL().value_or(QString()) + tableName;
}

int BLGeneral::execHTTP(RecordView record) const
{
    const bool hasKey = integerValue(SchemaReflect::getValue(record, 0)) != 0;
    const QString operation = hasKey ? u"UPDATE"_s : u"INSERT"_s;
    const WebService service(getWebServiceURL());
    const QString address = service.place() + "?OPERATION="_L1 + operation;
    const QString json = SchemaReflect::toJSON(record);
    // As many bytes as the text has UTF-16 units, even if its UTF-8 form is longer. httpPost writes
    // the Content-Length for it.
    const QByteArray body = json.toUtf8().left(json.size());
    return leadingInteger(
        post(service.request(escaped(address).toUtf8(),
                             {"Accept: application/json", "Content-Type: application/json"}),
             body));
}

int BLGeneral::deleteHTTP(QAnyStringView whereClause) const
{
    const WebService service(getWebServiceURL());
    const QString query = escaped("?OPERATION=DELETE&CLAUSE="_L1 + whereClause.toString());
    return leadingInteger(post(service.request((service.place() + query).toUtf8()), {}));
}

void BLGeneral::selectHTTPInto(QAnyStringView whereClause, RecordList records,
                               const std::optional<RecordPage> &page) const
{
    const WebService service(getWebServiceURL());
    QString address = service.place() + "?OPERATION=SELECT&CLAUSE="_L1 + whereClause.toString();
    if (page)
        address += "&FROM="_L1 + QString::number(page->from) + "&STEP="_L1
            + QString::number(page->stepLength);
    SchemaReflect::appendSelectReply(post(service.request(escaped(address).toUtf8()), {}), records);
}
