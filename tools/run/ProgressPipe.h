#pragma once

#include "FileDescriptor.h"

#include <QSocketNotifier>

#include <functional>
#include <optional>
#include <utility>

/// The two numbers of a line "done total", whatever they mean; none if it is anything else.
std::optional<std::pair<quint64, quint64>> progressIn(QByteArrayView line);

/// A pipe on which a child process writes lines "done total". What it writes is hostile until
/// checked: a turn of the event loop reads a few kilobytes and reports the last line of them, what
/// is longer than a line is dropped, and the pipe's end is never waited for. Interface thread only.
class ProgressPipe : public QObject
{
public:
    using Report = std::function<void(quint64 done, quint64 total)>;

    /// Without a pipe, for which the system may have no room, nothing is ever reported.
    explicit ProgressPipe(Report report);

    /// Closed in a child, unless that keeps it open on purpose; -1 if there is none.
    int writeEnd() const { return m_writeEnd.get(); }
    /// To be called once the child has it: nobody else may keep the pipe from ending.
    void closeWriteEnd() { m_writeEnd.close(); }

private:
    void read();

    const Report m_report;
    FileDescriptor m_readEnd; ///< Before the notifier that watches it.
    FileDescriptor m_writeEnd;
    std::optional<QSocketNotifier> m_notifier;
    QByteArray m_rest; ///< What came after the last whole line.
};
