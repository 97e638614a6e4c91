#include "SecurityScopedAccess.h"

#include <atomic>

namespace
{

std::atomic<int> opened = 0;
std::atomic<int> held = 0;

} // namespace

SecurityScopedAccess::SecurityScopedAccess(const QUrl &)
{
    ++opened;
    ++held;
}

SecurityScopedAccess::~SecurityScopedAccess()
{
    --held;
}

int SecurityScopedAccess::openedSoFar()
{
    return opened;
}

int SecurityScopedAccess::heldNow()
{
    return held;
}
