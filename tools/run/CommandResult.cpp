#include "CommandResult.h"

using namespace Qt::StringLiterals;

CommandResult::CommandResult(End end, int number, const QString &reason)
    : m_end(end), m_number(number), m_reason(reason)
{
}

CommandResult CommandResult::couldNotStart(const QString &reason)
{
    return {End::CouldNotStart, 0, reason};
}

CommandResult CommandResult::exited(int status)
{
    return {End::Exited, status, {}};
}

CommandResult CommandResult::killed(int signal)
{
    return {End::Killed, signal, {}};
}

CommandResult CommandResult::cancelled()
{
    return {End::Cancelled, 0, {}};
}

CommandResult CommandResult::ownerGone()
{
    return {End::OwnerGone, 0, {}};
}

QString CommandResult::description() const
{
    switch (m_end) {
    case End::CouldNotStart:
        return u"could not start: %1"_s.arg(m_reason.simplified());
    case End::Exited:
        return u"exited with status %1"_s.arg(m_number);
    case End::Killed:
        return u"killed by signal %1"_s.arg(m_number);
    case End::Cancelled:
        return u"stopped on request"_s;
    case End::OwnerGone:
        return u"stopped because its owner is gone"_s;
    }
    Q_UNREACHABLE();
}
