// The part of SchemaReflect that reads JSON.

#include "JSONRepair.h"
#include "LeadingNumber.h"
#include "SchemaReflect.h"

#include <simdjson.h>

#include <algorithm>
#include <cmath>
#include <limits>

using simdjson::dom::element;

namespace
{

QByteArrayView bytes(std::string_view text)
{
    return {text.data(), qsizetype(text.size())};
}

// A value of another kind reads as 0 or leaves a text missing.

int toInteger(const element &value)
{
    std::string_view text;
    if (value.get(text) == simdjson::SUCCESS)
        return leadingInteger(bytes(text));
    double number = 0;
    if (value.get(number) != simdjson::SUCCESS)
        return 0;
    using Range = std::numeric_limits<int>;
    return int(std::clamp(std::trunc(number), double(Range::min()), double(Range::max())));
}

double toDouble(const element &value)
{
    std::string_view text;
    if (value.get(text) == simdjson::SUCCESS)
        return leadingDouble(bytes(text));
    double number = 0;
    return value.get(number) == simdjson::SUCCESS ? number : 0;
}

QVariant toVariant(const element &value)
{
    std::string_view text;
    if (value.get(text) == simdjson::SUCCESS)
        return QString::fromUtf8(bytes(text));
    if (std::int64_t integer = 0; value.get(integer) == simdjson::SUCCESS)
        return qint64(integer);
    if (double number = 0; value.get(number) == simdjson::SUCCESS)
        return number;
    if (bool flag = false; value.get(flag) == simdjson::SUCCESS)
        return flag;
    return {};
}

QString toText(const element &value)
{
    return value.is_bool() ? QString() : toVariant(value).toString();
}

void setProperty(RecordWriter record, int index, PropertyType type, const element &value)
{
    switch (type) {
    case PropertyType::Integer:
        return record.setInteger(index, toInteger(value));
    case PropertyType::Double:
        return record.setDouble(index, toDouble(value));
    case PropertyType::Text:
        return record.setText(index, toText(value));
    case PropertyType::Other:
        return record.setOther(index, toVariant(value));
    }
}

void fill(RecordWriter record, const QList<RecordColumn> &columns,
          const simdjson::dom::object &object)
{
    for (const auto &[name, value] : object) {
        for (int i = 0; i < columns.size(); ++i) {
            if (columns[i].name == QLatin1String(name.data(), qsizetype(name.size())))
                setProperty(record, i, columns[i].type, value);
        }
    }
}

QByteArrayView withoutMark(QByteArrayView reply)
{
    constexpr QByteArrayView mark = "\xEF\xBB\xBF"; // the byte-order mark in UTF-8
    return reply.startsWith(mark) ? reply.sliced(mark.size()) : reply;
}

/// The parser refuses a text as a whole for one value that it cannot hold, so such a value is
/// replaced and the text is read again.
bool parse(simdjson::dom::parser &parser, QByteArrayView text, element &document)
{
    if (text.isEmpty()) // the parser must not be given that
        return false;
    const auto read = [&](QByteArrayView json) {
        return parser.parse(json.data(), std::size_t(json.size())).get(document);
    };
    const simdjson::error_code code = read(text);
    if (code == simdjson::NUMBER_ERROR || code == simdjson::STRING_ERROR)
        return read(repairedJSON(text)) == simdjson::SUCCESS;
    return code == simdjson::SUCCESS;
}

} // namespace

void SchemaReflect::convertFromJSON(const simdjson::dom::object &object, RecordWriter record)
{
    fill(record, recordColumns(record.recordClass()), object);
}

void SchemaReflect::appendSelectReply(QByteArrayView reply, RecordList records)
{
    // Replies can be long: this parser and the records together take less than half the time that
    // Qt's parser takes for its document alone.
    simdjson::dom::parser parser;
    simdjson::dom::element document;
    simdjson::dom::array elements;
    if (!parse(parser, withoutMark(reply), document)
        || document["RESULT"].get(elements) != simdjson::SUCCESS)
        return;
    const QList<RecordColumn> columns = recordColumns(records.recordClass());
    for (const element item : elements) {
        simdjson::dom::object object;
        if (item.get(object) == simdjson::SUCCESS)
            fill(records.append(), columns, object);
    }
}
