#pragma once

#include "FileDescriptor.h"

#include <QObject>

#include <memory>

class QSocketNotifier;

/// Turns what the system sends to end a program (SIGTERM, SIGHUP, SIGINT) into a Qt signal, so that
/// the program can clean up. Only the first of each kind: a second one ends the program at once. A
/// signal that is ignored already, as nohup does, stays ignored. One object in a program, on the
/// interface thread.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    void received();

private:
    FileDescriptor m_inbox;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
