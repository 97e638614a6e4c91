// Whatever a client sends as a record, reading it never leaves the bytes, and a record that is read
// fits its table.

#include "RecordBody.h"
#include "SampleTable.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const TableSchema &table = sampleTables()[0];
    const auto body = RecordBody::parse(table, sampleText(data, size));
    const auto *record = std::get_if<RecordBody>(&body);
    if (!record)
        return 0;
    bool fits = record->values.size() + 1 == table.columns.size();
    for (std::size_t i = 0; fits && i < record->values.size(); ++i) {
        const auto *text = std::get_if<std::string>(&record->values[i]);
        fits = (text != nullptr) == (table.columns[i + 1].kind == ColumnKind::Text)
            && (!text || text->size() <= RecordBody::maxTextLength);
    }
    if (!fits)
        __builtin_trap();
    return 0;
}
