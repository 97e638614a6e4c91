#pragma once

#include <QtGlobal>

#include <chrono>

struct sqlite3;

/// One allowance of waiting for everything that a user's action does with the database. While
/// another process holds the file, each statement waits up to timeout(); while a budget exists, all
/// its statements together do. The outermost budget counts. Interface thread only.
class BusyBudget
{
public:
    BusyBudget();
    ~BusyBudget();
    Q_DISABLE_COPY_MOVE(BusyBudget)

    /// Whether a statement has given up since the outermost budget, or the last statement without
    /// one, began: the file was held for too long.
    static bool isUsedUp();

    static std::chrono::milliseconds &timeout(); ///< A change applies to the waiting that follows.
    /// Makes the statements of this connection wait so.
    static void applyTo(sqlite3 *connection);
};
