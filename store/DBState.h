#pragma once

#include "Http.h"

#include <QString>

#include <vector>

struct sqlite3;

/// Everything that the record store remembers between two calls, in one place. Only `DB` and
/// `DBSession` touch it; tests set it to try what the program itself never sets ("mysql").
struct DBState {
    sqlite3 *handle = nullptr; ///< Stays as it was after a close; see isUsable.
    bool isUsable = false; ///< Whether the handle may be given to SQLite.
    std::vector<sqlite3 *> earlierHandles; ///< Opened, then replaced by a further open.
    QString type; ///< Null while unset.
    QString webServiceURL; ///< Null while unset.
    HttpLimits webServiceLimits;
    bool isOpenFlag = false;

    static DBState &current();

    /// The handle for a call to SQLite, which answers a null handle with "misuse" instead of a
    /// crash, as it answers the handle of a failed open.
    sqlite3 *usableHandle() const { return isUsable ? handle : nullptr; }
};
