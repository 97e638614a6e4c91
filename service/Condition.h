#pragma once

#include "Status.h"
#include "TableSchema.h"

/// A node of a parsed condition.
struct Condition {
    enum class Kind {
        Always, ///< 1=1
        Never, ///< 0=1
        Compare, ///< column, comparison, values[0]
        In, ///< column, values
        Between, ///< column, values[0] and values[1]
        IsNull, ///< column
        IsNotNull, ///< column
        Not, ///< parts[0]
        And, ///< parts, two or more
        Or, ///< parts, two or more
    };

    Kind kind = Kind::Always;
    int column = 0; ///< A position in the table.
    std::string_view comparison = {}; ///< "=", "<>", "<", "<=", ">" or ">="; a constant.
    std::vector<Value> values = {}; ///< Of the column's kind.
    std::vector<Condition> parts = {};

    bool namesColumn() const; ///< Anywhere within it.
    bool isOneKey() const; ///< Whether it is "ID=n".
};

struct Ordering {
    int column;
    bool isDescending;
};

/// What a client sends behind "&CLAUSE=": a condition, and for a select an order.
///
///     condition = part {OR part};  part = term {AND term}
///     term      = NOT term | "(" condition ")" | 1=1 | 0=1 | column test
///     test      = (= | <> | < | <= | > | >=) literal | IN "(" literal {"," literal} ")"
///               | BETWEEN literal AND literal | IS [NOT] NULL
///     order     = ORDER BY column [ASC | DESC] {"," column [ASC | DESC]}
///
/// It is the part of SQL that the application uses. Nothing of a client's text reaches a database:
/// an engine makes a statement of the tree and binds the values.
struct Clause {
    Condition condition;
    std::vector<Ordering> order; ///< Empty: by ID.

    static constexpr std::size_t maxLength = 8 * 1024;
    static constexpr int maxDepth = 64;

    static Parsed<Clause> parse(const TableSchema &table, std::string_view text);
};
