#pragma once

#include "FileDescriptor.h"

#include <QObject>

#include <memory>

class QSocketNotifier;

/// Turns the system's termination signals (SIGTERM, SIGHUP, SIGINT) into a Qt signal, so that the
/// program can clean up. Only the first of each kind: a second one ends the program at once. A
/// signal that is ignored already, as with nohup, stays ignored. At most one object at a time, on
/// the interface thread.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    /// Without a file descriptor left for it, the signals go on ending the program at once.
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    void received(); ///< From the event loop, not from the signal handler.

private:
    FileDescriptor m_inbox;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
