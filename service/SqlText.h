#pragma once

#include "Engine.h"

/// A statement and the values to bind to its "?", which belong to what it was made of.
struct SqlText {
    std::string text;
    std::vector<const Value *> values;

    static SqlText select(const Selection &selection);
    static SqlText remove(const TableSchema &table, const Condition &condition);
    static SqlText insert(const TableSchema &table, const RecordBody &record);
    /// The key is the last value.
    static SqlText update(const TableSchema &table, const RecordBody &record, const Value &key);

private:
    void append(const TableSchema &table, const Condition &condition, bool isNegated = false);
    void appendTest(const TableSchema &table, const Condition &test);
    void appendJoined(const TableSchema &table, std::vector<const Condition *> parts,
                      std::string_view word, bool isNegated);
    void appendHalves(const TableSchema &table, std::span<const Condition *const> parts,
                      std::string_view word, bool isNegated);
    void appendPlaces(std::span<const Value> bound, std::string_view separator);
};
