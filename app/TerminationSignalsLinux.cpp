#include "TerminationSignals.h"

#include <QSocketNotifier>

#include <sys/eventfd.h>

#include <cerrno>
#include <csignal>
#include <cstdint>

namespace
{

volatile std::sig_atomic_t inbox = -1;

// A handler may do next to nothing; to write to a descriptor is allowed.
extern "C" void noteSignal(int)
{
    const int error = errno;
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(inbox, &one, sizeof one);
    errno = error;
}

void listenTo(int signal)
{
    struct sigaction present = {};
    if (sigaction(signal, nullptr, &present) != 0 || present.sa_handler == SIG_IGN)
        return;
    struct sigaction ours = {};
    ours.sa_handler = noteSignal;
    ours.sa_flags = static_cast<int>(SA_RESETHAND) | SA_RESTART;
    sigaction(signal, &ours, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent), m_inbox(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    if (!m_inbox)
        return; // and signals end the program, as before
    inbox = m_inbox.get();
    m_notifier = std::make_unique<QSocketNotifier>(m_inbox.get(), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, [this] {
        std::uint64_t count = 0;
        [[maybe_unused]] const ssize_t size = ::read(m_inbox.get(), &count, sizeof count);
        Q_EMIT received();
    });
    for (const int signal : {SIGTERM, SIGHUP, SIGINT})
        listenTo(signal);
}

TerminationSignals::~TerminationSignals()
{
    for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
        struct sigaction present = {};
        if (sigaction(signal, nullptr, &present) == 0 && present.sa_handler == noteSignal)
            std::signal(signal, SIG_DFL);
    }
    inbox = -1;
}
