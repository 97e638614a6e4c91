#pragma once

#include "Status.h"
#include "TableSchema.h"

#include <optional>
#include <span>

enum class Operation { Insert, Update, Delete, Select };

std::string_view operationName(Operation operation); ///< "INSERT"

/// A page as clients number it: up to step + 2 records from position `from` on.
struct Page {
    int from;
    int step;
};

/// What the address of a request asks for.
struct RecordQuery {
    const TableSchema *table; ///< One of those that were passed to parse().
    Operation operation;
    std::string clause; ///< Decoded and not checked yet. Empty for an insert and an update.
    std::optional<Page> page;

    static constexpr int maxStep = 10'000;

    /// Reads an address without its host, such as
    /// "/records/User?OPERATION=SELECT&CLAUSE=ID=7&FROM=0&STEP=10". Clients do not escape "&" and
    /// "=" within a clause, so it runs from the first "&CLAUSE=" to the end, or to a page's numbers
    /// there.
    static Parsed<RecordQuery> parse(std::span<const TableSchema> tables, std::string_view base,
                                     std::string_view target);

    /// Whether the beginning of an address asks for a select, also if the address is no good.
    static bool looksLikeSelect(std::string_view target);
};

/// The text with each %XX replaced by its byte, once; none if a "%" is not followed by two digits.
/// A "+" is a plus.
std::optional<std::string> percentDecoded(std::string_view text);
