#pragma once

#include <QUrl>

/// Access to a folder that the user once granted, held for as long as this lives. Platforms that
/// confine programs ask for the pair of calls around every use; Linux does not confine us, so here
/// it only keeps count. Any thread.
class SecurityScopedAccess
{
public:
    explicit SecurityScopedAccess(const QUrl &folder);
    ~SecurityScopedAccess();
    SecurityScopedAccess(const SecurityScopedAccess &) = delete;
    SecurityScopedAccess &operator=(const SecurityScopedAccess &) = delete;

    static int openedSoFar(); ///< Since the program started.
    static int heldNow();
};
