#pragma once

#include "Status.h"
#include "TableSchema.h"

/// A record that a client sends.
struct RecordBody {
    std::int64_t key = 0;
    std::vector<Value> values; ///< Of the columns from 1 on.

    static constexpr std::size_t maxTextLength = 65'535; ///< Bytes.
    /// Of a body: the texts of a record, each byte of them escaped, and more.
    static constexpr std::size_t maxLength = 2 * 1024 * 1024;

    /// Reads one JSON object that has a member for each column, once, and no others. Numbers may be
    /// JSON numbers or, as the application writes them, texts; they have 32 bits, as there.
    static Parsed<RecordBody> parse(const TableSchema &table, std::string_view json);
};
