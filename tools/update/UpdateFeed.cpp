#include "UpdateFeed.h"

#include "NotesText.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QSettings>
#include <QSysInfo>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace
{

// The name spaces' identifiers; nothing is ever fetched from them.
constexpr auto castNamespace = "http://www.andymatuschak.org/xml-namespaces/sparkle"_L1;
constexpr auto ownNamespace = "urn:toolvane:feed"_L1;

constexpr qsizetype maxNotes = 16 * 1024; // characters, as the next
constexpr qsizetype maxText = 200;
constexpr qint64 maxFileSize = 4LL * 1024 * 1024 * 1024;
constexpr qsizetype signatureSize = 64; // RFC 8032, section 5.1.6

QByteArray fromBase64(QByteArrayView text)
{
    const auto result =
        QByteArray::fromBase64Encoding(text.toByteArray(), QByteArray::AbortOnBase64DecodingErrors);
    return result ? *result : QByteArray();
}

// As RSS 2.0 writes it: RFC 822 with four-digit years. Greenwich may be named there.
QDateTime dateOf(QString text)
{
    static const QRegularExpression greenwich(u"\\s(GMT|UT|UTC|Z)\\z"_s);
    text = text.trimmed().replace(greenwich, u" +0000"_s);
    return QDateTime::fromString(text, Qt::RFC2822Date).toUTC();
}

class FeedReader
{
public:
    explicit FeedReader(QByteArrayView bytes)
        : m_xml(QByteArray::fromRawData(bytes.data(), bytes.size()))
    {
    }

    std::optional<UpdateFeed> read()
    {
        if (!readTopElement())
            return {};
        while (m_xml.readNextStartElement()) {
            if (isPlain("channel"_L1))
                readChannel();
            else
                m_xml.skipCurrentElement();
        }
        while (!m_xml.atEnd()) // what follows the top element must be well-formed, too
            m_xml.readNext();
        if (m_xml.hasError() || !m_hasChannel)
            return {};
        return std::move(m_feed);
    }

private:
    // A document type can only do harm here; its entities are the known way to do it.
    bool readTopElement()
    {
        while (!m_xml.atEnd()) {
            const QXmlStreamReader::TokenType token = m_xml.readNext();
            if (token == QXmlStreamReader::DTD)
                return false;
            if (token == QXmlStreamReader::StartElement)
                return m_xml.name() == "rss"_L1;
        }
        return false;
    }

    bool is(QLatin1String space, QLatin1String name) const
    {
        return m_xml.namespaceUri() == space && m_xml.name() == name;
    }
    bool isPlain(QLatin1String name) const { return is({}, name); }
    bool isCast(QLatin1String name) const { return is(castNamespace, name); }

    QString text(qsizetype maxSize = maxText)
    {
        return m_xml.readElementText(QXmlStreamReader::SkipChildElements).left(maxSize);
    }

    void readChannel()
    {
        m_hasChannel = true;
        while (m_xml.readNextStartElement()) {
            if (isPlain("lastBuildDate"_L1))
                m_feed.date = dateOf(text());
            else if (is(ownNamespace, "expires"_L1))
                m_feed.expiry = dateOf(text());
            else if (isPlain("item"_L1))
                readItem();
            else
                m_xml.skipCurrentElement();
        }
    }

    void readItem()
    {
        UpdateItem item;
        while (m_xml.readNextStartElement())
            readItemElement(item);
        if (item.version.isNull())
            return;
        if (item.shortVersion.isEmpty())
            item.shortVersion = item.version.toString();
        if (m_feed.items.size() >= UpdateFeed::maxItems)
            m_xml.raiseError(u"too many items"_s);
        m_feed.items += item;
    }

    void readItemElement(UpdateItem &item)
    {
        if (isCast("version"_L1))
            item.version = versionOf(text().trimmed());
        else if (isCast("shortVersionString"_L1))
            item.shortVersion = text().simplified();
        else if (isCast("minimumSystemVersion"_L1))
            item.minimumSystem = versionOf(text().trimmed());
        else if (isCast("channel"_L1))
            item.channel = text().trimmed();
        else if (isPlain("description"_L1))
            readNotes(item);
        else if (isPlain("enclosure"_L1))
            readEnclosure(item);
        else {
            if (is(ownNamespace, "withdrawn"_L1))
                item.withdrawn = true;
            m_xml.skipCurrentElement();
        }
    }

    void readNotes(UpdateItem &item)
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        const bool isPlainText = attributes.value(castNamespace, "format"_L1) == "plain-text"_L1;
        const QString notes = text(maxNotes);
        item.notes = (isPlainText ? notes : plainTextOfNotes(notes)).trimmed();
    }

    void readEnclosure(UpdateItem &item)
    {
        const QXmlStreamAttributes attributes = m_xml.attributes();
        m_xml.skipCurrentElement();
        if (!item.address.isEmpty()) // an item has one file
            return;
        const auto cast = [&attributes](QLatin1String name) {
            return attributes.value(castNamespace, name).trimmed();
        };
        item.address = attributes.value("url"_L1).trimmed().toUtf8();
        item.length = attributes.value("length"_L1).toLongLong();
        item.signature = fromBase64(cast("edSignature"_L1).toLatin1());
        item.system = cast("os"_L1).left(maxText).toString();
        // Older feeds name the versions here.
        if (item.version.isNull())
            item.version = versionOf(cast("version"_L1));
        if (item.shortVersion.isEmpty())
            item.shortVersion = cast("shortVersionString"_L1).left(maxText).toString().simplified();
    }

    QXmlStreamReader m_xml;
    UpdateFeed m_feed;
    bool m_hasChannel = false;
};

bool suits(const UpdateItem &item, const UpdateRules &rules)
{
    return item.version > rules.installed && !item.withdrawn
        && !rules.withdrawn.contains(item.version)
        && (item.system.isEmpty() || item.system == rules.systemName)
        && (rules.system.isNull() || item.minimumSystem <= rules.system)
        && (item.channel.isEmpty() || item.channel == rules.channel);
}

bool canBeFetched(const UpdateItem &item)
{
    return item.signature.size() == signatureSize && item.length > 0 && item.length <= maxFileSize
        && isSafeAddress(item.address);
}

} // namespace

std::optional<UpdateFeed> UpdateFeed::read(QByteArrayView bytes)
{
    if (bytes.size() > maxBytes)
        return {};
    return FeedReader(bytes).read();
}

SignedFeed SignedFeed::split(QByteArrayView bytes)
{
    constexpr QByteArrayView begin("<!-- edSignature: ");
    constexpr QByteArrayView end(" -->");
    const QByteArrayView trimmed = bytes.trimmed();
    const qsizetype at = trimmed.lastIndexOf(begin);
    if (at < 1 || trimmed[at - 1] != '\n')
        return {bytes, {}};
    const QByteArrayView rest = trimmed.sliced(at + begin.size());
    if (!rest.endsWith(end))
        return {bytes, {}};
    const qsizetype lead = trimmed.data() - bytes.data();
    return {bytes.first(lead + at), fromBase64(rest.chopped(end.size()))};
}

UpdateRules UpdateRules::current()
{
    return {.installed =
                QVersionNumber::fromString(QCoreApplication::applicationVersion()).normalized(),
            .system = QVersionNumber::fromString(QSysInfo::kernelVersion()).normalized(),
            .systemName = QSysInfo::kernelType(),
            .channel = QSettings().value("Update/Channel"_L1).toString(),
            .withdrawn = {}};
}

std::optional<UpdateItem> chooseOffer(const UpdateFeed &feed, const UpdateRules &rules)
{
    // A feed may say that a version is withdrawn in one item and still hold its old one.
    UpdateRules all = rules;
    for (const UpdateItem &item : feed.items) {
        if (item.withdrawn)
            all.withdrawn += item.version;
    }
    std::optional<UpdateItem> best;
    for (const UpdateItem &item : feed.items) {
        if (suits(item, all) && canBeFetched(item) && (!best || item.version > best->version))
            best = item;
    }
    return best;
}

QVersionNumber versionOf(QStringView text)
{
    constexpr qsizetype maxSize = 64;
    qsizetype suffix = 0;
    const QVersionNumber version =
        QVersionNumber::fromString(text.left(maxSize).toString(), &suffix);
    return suffix == text.size() ? version.normalized() : QVersionNumber();
}

bool isSafeAddress(const QByteArray &address)
{
    constexpr QByteArrayView secure("https://");
    if (address.left(secure.size()).compare(secure, Qt::CaseInsensitive) == 0)
        return address.size() > secure.size();
    // The text itself and nothing that takes it apart: two readers may see two hosts in
    // "http://127.0.0.1:80@elsewhere/".
    static const QRegularExpression ownMachine(
        uR"(\Ahttp://(127\.0\.0\.1|\[::1\])(:[0-9]{1,5})?/)"_s);
    return ownMachine.match(QString::fromLatin1(address)).hasMatch();
}
