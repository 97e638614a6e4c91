#include "SelectReply.h"

#include "SchemaReflect.h"

#include <simdjson.h>

void appendSelectReply(QByteArrayView reply, RecordList records)
{
    // Replies can be long: this parser and the records take less than half of the time that Qt's
    // takes for its document alone.
    simdjson::dom::parser parser;
    simdjson::dom::element document;
    simdjson::dom::array elements;
    if (reply.isEmpty() // which the parser does not stand
        || parser.parse(reply.data(), std::size_t(reply.size())).get(document) != simdjson::SUCCESS
        || document["RESULT"].get(elements) != simdjson::SUCCESS)
        return;
    const QList<RecordColumn> columns = recordColumns(records.recordClass());
    for (const simdjson::dom::element element : elements) {
        simdjson::dom::object object;
        if (element.get(object) == simdjson::SUCCESS)
            SchemaReflect::convertFromJSON(object, columns, records.append());
    }
}
