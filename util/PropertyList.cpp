#include "PropertyList.h"

#include "PropertyListBinary.h"

#include <QDateTime>
#include <QFile>
#include <QXmlStreamReader>

using namespace Qt::StringLiterals;

namespace PropertyList
{

namespace
{

/// Reads the XML form by recursive descent. A document that declares entities of its own is
/// refused: property lists have no use for them and attackers do. An empty QVariant means
/// "refused" throughout; no value of a property list is one.
class XmlReader
{
public:
    XmlReader(QByteArrayView bytes, const Limits &limits)
        : m_xml(QByteArray::fromRawData(bytes.data(), bytes.size())), m_budget(limits)
    {
        m_xml.setEntityExpansionLimit(0);
    }

    QVariant readDocument()
    {
        if (!nextElement() || m_xml.name() != "plist"_L1 || !nextElement())
            return {};
        const QVariant value = readValue();
        // Nothing may follow the value inside the list, and only comments may follow the list.
        if (!value.isValid() || nextElement())
            return {};
        while (!m_xml.atEnd())
            m_xml.readNext();
        return m_xml.hasError() ? QVariant() : value;
    }

private:
    /// Goes to the next start tag within the element that is open; false at its end tag, and after
    /// raising an error if there is anything else.
    bool nextElement()
    {
        while (!m_xml.atEnd()) {
            switch (m_xml.readNext()) {
            case QXmlStreamReader::StartElement:
                return true;
            case QXmlStreamReader::EndElement:
                return false;
            case QXmlStreamReader::DTD:
                if (!m_xml.entityDeclarations().isEmpty())
                    m_xml.raiseError(u"entities declared"_s);
                break;
            case QXmlStreamReader::Characters:
                if (!m_xml.isWhitespace())
                    m_xml.raiseError(u"text outside a value"_s);
                break;
            default:
                break;
            }
        }
        return false;
    }

    QVariant readValue()
    {
        if (!m_budget.takeObject())
            return {};
        const QStringView kind = m_xml.name();
        if (kind == "dict"_L1 || kind == "array"_L1) {
            if (!m_budget.enter())
                return {};
            QVariant value = kind == "dict"_L1 ? readDictionary() : readArray();
            m_budget.leave();
            return value;
        }
        const QString name = kind.toString();
        return readScalar(name, m_xml.readElementText());
    }

    QVariant readDictionary()
    {
        QVariantMap map;
        while (nextElement()) {
            if (m_xml.name() != "key"_L1)
                return {};
            const QString key = m_xml.readElementText();
            const QVariant value = nextElement() ? readValue() : QVariant();
            if (!value.isValid())
                return {};
            map.insert(key, value);
        }
        return m_xml.hasError() ? QVariant() : map;
    }

    QVariant readArray()
    {
        QVariantList list;
        while (nextElement()) {
            list.append(readValue());
            if (!list.last().isValid())
                return {};
        }
        return m_xml.hasError() ? QVariant() : list;
    }

    QVariant readScalar(const QString &kind, const QString &text)
    {
        if (m_xml.hasError())
            return {};
        if (kind == "string"_L1)
            return text;
        if (kind == "integer"_L1)
            return readInteger(text.trimmed());
        if (kind == "real"_L1)
            return readReal(text.trimmed());
        if (kind == "true"_L1 || kind == "false"_L1)
            return kind == "true"_L1;
        if (kind == "date"_L1)
            return readDate(text.trimmed());
        if (kind == "data"_L1)
            return readData(text);
        return {};
    }

    static QVariant readInteger(const QString &text)
    {
        bool ok = false;
        const int base = text.contains(u'x', Qt::CaseInsensitive) ? 16 : 10;
        if (const qint64 number = text.toLongLong(&ok, base); ok)
            return number;
        const quint64 number = text.toULongLong(&ok, base);
        return ok ? QVariant(number) : QVariant();
    }

    static QVariant readReal(const QString &text)
    {
        bool ok = false;
        const double number = text.toDouble(&ok);
        return ok ? QVariant(number) : QVariant();
    }

    static QVariant readDate(const QString &text)
    {
        const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
        return date.isValid() ? QVariant(date.toUTC()) : QVariant();
    }

    static QVariant readData(const QString &text)
    {
        const auto data = QByteArray::fromBase64Encoding(text.simplified().remove(u' ').toLatin1(),
                                                         QByteArray::AbortOnBase64DecodingErrors);
        return data ? QVariant(*data) : QVariant();
    }

    QXmlStreamReader m_xml;
    Budget m_budget;
};

} // namespace

std::optional<QVariant> read(QByteArrayView bytes, const Limits &limits)
{
    if (bytes.size() > limits.bytes)
        return {};
    const QVariant value =
        isBinary(bytes) ? readBinary(bytes, limits) : XmlReader(bytes, limits).readDocument();
    return value.isValid() ? std::optional(value) : std::nullopt;
}

std::optional<QVariantMap> readDictionary(QByteArrayView bytes, const Limits &limits)
{
    const auto value = read(bytes, limits);
    if (!value || value->metaType() != QMetaType::fromType<QVariantMap>())
        return {};
    return value->toMap();
}

std::optional<QVariantMap> readDictionaryFile(const QString &path, const Limits &limits)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    // One byte more than allowed shows that the file is too long.
    return readDictionary(file.read(limits.bytes + 1), limits);
}

} // namespace PropertyList
