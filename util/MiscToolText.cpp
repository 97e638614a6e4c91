#include "FixedText.h"
#include "LocalCalendar.h"
#include "MiscTool.h"

#include <QDateTime>
#include <QDebug>
#include <QStringConverter>

using namespace Qt::StringLiterals;

namespace
{

LocalDate today()
{
    return localDateAt(QDateTime::currentMSecsSinceEpoch());
}

QTime now()
{
    return QTime::currentTime();
}

QString dateText(const LocalDate &date)
{
    return u"%1-%2-%3"_s.arg(QString::number(date.year), QString::number(date.month),
                             QString::number(date.day));
}

QString timeText(QTime time)
{
    return time.toString(u"H:m:s"_s);
}

QString inUnits(float count, float unit, int precision, QLatin1StringView name)
{
    const float inUnit = count * (1.0f / unit);
    return fixedText(static_cast<double>(inUnit), precision) + name;
}

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

QString listPiece(const QString &value, bool toEnd)
{
    return toEnd ? value : value + u',';
}

// An unpaired surrogate becomes U+FFFD; QString::toUtf8() makes it "?", a delimiter of addresses.
QByteArray utf8(const QString &text)
{
    return QStringEncoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless)(text);
}

// QByteArray::fromPercentEncoding takes any two characters behind a "%" for digits.
QByteArray withoutEscapes(const QByteArray &text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool escape = text[i] == '%' && i + 2 < text.size() && isHexDigit(text[i + 1])
            && isHexDigit(text[i + 2]);
        bytes += escape ? QByteArray::fromHex(text.mid(i + 1, 2)) : text.mid(i, 1);
        i += escape ? 2 : 0;
    }
    return bytes;
}

// Without the flag a leading U+FEFF would be taken for a mark of the encoding and lost.
QStringDecoder textDecoder(QStringConverter::Encoding encoding)
{
    return QStringDecoder(
        encoding, QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
}

} // namespace

std::int64_t MiscTool::getYear()
{
    return today().year;
}

std::int64_t MiscTool::getMonth()
{
    return today().month;
}

std::int64_t MiscTool::getDay()
{
    return today().day;
}

std::int64_t MiscTool::getDate()
{
    return today().weekday;
}

QString MiscTool::getToday()
{
    return dateText(today());
}

std::int64_t MiscTool::getHour()
{
    return now().hour();
}

std::int64_t MiscTool::getMinute()
{
    return now().minute();
}

std::int64_t MiscTool::getSecond()
{
    return now().second();
}

QString MiscTool::getTime()
{
    return timeText(now());
}

QString MiscTool::getNow()
{
    // One moment for both halves: at midnight two would give a day and a time that never met.
    const QDateTime moment = QDateTime::currentDateTime();
    return dateText(localDateAt(moment.toMSecsSinceEpoch())) + u' ' + timeText(moment.time());
}

QString MiscTool::getDefaultStartDate()
{
    return u"1970-01-01"_s;
}

QString MiscTool::getDefaultStartTime()
{
    return getDefaultStartDate() + u" 00:00:00"_s;
}

QString MiscTool::convertBytes(std::uint64_t count)
{
    constexpr float kilo = 1024.0f;
    constexpr float mega = kilo * kilo;
    constexpr float giga = mega * kilo;
    const auto rounded = static_cast<float>(count);
    if (rounded >= giga)
        return inUnits(rounded, giga, 2, " GB"_L1);
    if (rounded >= mega)
        return inUnits(rounded, mega, 1, " MB"_L1);
    if (rounded >= kilo)
        return inUnits(rounded, kilo, 1, " KB"_L1);
    return count == 0 ? u"--"_s : QString::number(count) + " Bytes"_L1;
}

QString MiscTool::UInteger2SQLString(std::uint64_t value, bool toEnd)
{
    return listPiece(QString::number(value), toEnd);
}

QString MiscTool::NSString2SQLString(const QString &text, bool toEnd)
{
    return listPiece(u'\'' + text + u'\'', toEnd);
}

QString MiscTool::getNSString(const char *text)
{
    if (!text)
        return u""_s;
    return textDecoder(QStringConverter::System)(QByteArrayView(text));
}

void MiscTool::printMsg(const QString &sender, const QString &method, const QString &message)
{
    qInfo().noquote().nospace() << u'[' + sender + u"]->("_s + method + u"):"_s + message;
}

QString MiscTool::encode2UTF8(const QString &text)
{
    // Letters, digits, "-", ".", "_" and "~" stay in any case; these are the other marks and the
    // delimiters of RFC 2396. "#" is none of them: it separates an address from its fragment.
    static constexpr char kept[] = "!*'();/?:@&=+$,";
    return QString::fromLatin1(utf8(text).toPercentEncoding(kept));
}

std::optional<QString> MiscTool::decodeFromUTF8(const QString &text)
{
    QStringDecoder decode = textDecoder(QStringConverter::Utf8);
    const QString decoded = decode(withoutEscapes(utf8(text)));
    if (decode.hasError())
        return std::nullopt;
    return decoded;
}
