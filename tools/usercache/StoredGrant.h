#pragma once

#include <QByteArray>
#include <QUrl>

#include <atomic>

/// The bookmark of the folder that the user granted, in the user defaults under
/// "AuthorizedLocation", where it outlives the program. Any thread.
namespace StoredGrant
{

/// Whether a bookmark is stored, even one that leads nowhere.
bool exists();

/// The granted folder; empty if none is stored or the stored one no longer leads to a folder.
QUrl resolve();

/// The bookmark is on the disk when this returns; a log line says if that failed.
void store(const QByteArray &bookmark);

} // namespace StoredGrant

/// Access to a folder that the user once granted, held for as long as this lives. Platforms that
/// confine programs require the pair of calls around every use; Linux does not confine us, so here
/// it only keeps count. Any thread.
class SecurityScopedAccess
{
public:
    explicit SecurityScopedAccess(const QUrl &)
    {
        ++s_opened;
        ++s_held;
    }
    ~SecurityScopedAccess() { --s_held; }
    SecurityScopedAccess(const SecurityScopedAccess &) = delete;
    SecurityScopedAccess &operator=(const SecurityScopedAccess &) = delete;

    static int openedSoFar() { return s_opened; } ///< Since the program started.
    static int heldNow() { return s_held; }

private:
    static inline std::atomic<int> s_opened = 0;
    static inline std::atomic<int> s_held = 0;
};
