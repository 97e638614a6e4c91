#pragma once

#include "Condition.h"
#include "RecordBody.h"
#include "RecordQuery.h"

#include <functional>

/// Records to read.
struct Selection {
    const TableSchema *table;
    Clause clause;
    std::optional<Page> page;
};

/// A write: an insert or update of `record`, or a delete by `condition`.
struct Change {
    const TableSchema *table;
    Operation operation;
    RecordBody record;
    Condition condition;
};

/// What keeps the records. An engine reports every failure of its own as Status::NotNow, says the
/// cause in the log, and has then changed nothing.
class Engine
{
public:
    virtual ~Engine() = default;

    /// Takes the change and returns at once. `done` is called later, on a thread of the engine,
    /// when the change is durable or has failed. Any thread.
    virtual void change(Change change, std::function<void(Outcome)> done) = 0;
    /// The reply's text, see JsonRows. Blocks. Any thread.
    virtual Parsed<std::string> select(const Selection &selection) = 0;
    /// The same if it takes but a moment, without waiting for a lock or a network; else none. It
    /// spares the way to another thread and back, which costs more than finding a record by its
    /// key.
    virtual std::optional<std::string> selectAtOnce(const Selection &selection) = 0;
    /// Whether records can be read. Blocks. Any thread.
    virtual bool isHealthy() = 0;
};
