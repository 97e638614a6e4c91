#include "BusyBudget.h"

#include <sqlite3.h>

#include <algorithm>
#include <thread>

using namespace std::chrono_literals;

namespace
{

constexpr std::chrono::nanoseconds retryInterval = 10ms;

struct Waiting {
    std::chrono::milliseconds timeout{5000};
    std::chrono::nanoseconds left{};
    int budgets = 0;
    bool isUsedUp = false;
};

Waiting waiting;

void startAnew()
{
    waiting.left = waiting.timeout;
    waiting.isUsedUp = false;
}

/// SQLite's handler; `tries` counts within one statement. Returns whether to try again.
int waitAWhile(void *, int tries)
{
    if (tries == 0 && waiting.budgets == 0)
        startAnew();
    if (waiting.left <= 0ns) {
        waiting.isUsedUp = true;
        return 0;
    }
    const auto begin = std::chrono::steady_clock::now();
    std::this_thread::sleep_for(std::min(retryInterval, waiting.left));
    waiting.left -= std::chrono::steady_clock::now() - begin;
    return 1;
}

} // namespace

BusyBudget::BusyBudget()
{
    if (waiting.budgets++ == 0)
        startAnew();
}

BusyBudget::~BusyBudget()
{
    --waiting.budgets;
}

bool BusyBudget::isUsedUp()
{
    return waiting.isUsedUp;
}

std::chrono::milliseconds &BusyBudget::timeout()
{
    return waiting.timeout;
}

void BusyBudget::applyTo(sqlite3 *connection)
{
    sqlite3_busy_handler(connection, &waitAWhile, nullptr);
}
