// Whatever stands in an address, reading it never leaves the text, and what is read is within
// limits.

#include "RecordQuery.h"
#include "SampleTable.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view target = sampleText(data, size);
    const auto query = RecordQuery::parse(sampleTables(), "/records/", target);
    const auto *read = std::get_if<RecordQuery>(&query);
    const bool isSound = !read
        || (read->table == sampleTables().data() && read->clause.size() <= size
            && (!read->page || read->page->step <= RecordQuery::maxStep)
            && (read->operation != Operation::Select || RecordQuery::looksLikeSelect(target)));
    if (!isSound)
        __builtin_trap();
    return 0;
}
