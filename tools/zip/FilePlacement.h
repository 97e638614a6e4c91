#pragma once

#include <QFuture>
#include <QString>

#include <stop_token>

/// What became of a finished file on its way to its place.
class FilePlacement
{
public:
    enum class End {
        Renamed, ///< Same file system: nothing was written twice.
        Copied, ///< Written anew, flushed, and only then given its name.
        AlreadyThere, ///< Both paths name the same file: nothing to do, nothing removed.
        NotPlaced, ///< The target is as it was before; see error().
    };

    FilePlacement(End end, int error) : m_end(end), m_error(error) { }

    End end() const { return m_end; }
    bool succeeded() const { return m_end != End::NotPlaced; }
    int error() const { return m_error; } ///< The `errno` of the failure, 0 for success.
    bool wasStopped() const; ///< Not placed because of the order to stop.
    /// In a few English words on one line, for the log.
    QString description() const;

private:
    End m_end;
    int m_error;
};

/// Moves a finished file to its place on a worker thread. Whatever stands at `to` stays byte for
/// byte; nothing half-written is ever left at `to` or beside it. Afterwards `from` is gone, even
/// when the file could not be placed; only an order to stop leaves it where it is. A failure also
/// goes to the log. May be called on any thread; the future has exactly one result.
///
/// An order to stop counts until the file gets its name: then nothing is placed. What the system
/// is flushing to a slow disk just then is waited for.
QFuture<FilePlacement> placeFile(const QString &from, const QString &to,
                                 const std::stop_token &stop = {});
