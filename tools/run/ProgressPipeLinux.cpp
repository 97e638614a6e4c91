#include "ProgressPipe.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <charconv>

namespace
{

constexpr qsizetype maxLine = 2 * 20 + 2; // two numbers, a blank and the line's end

} // namespace

std::optional<std::pair<quint64, quint64>> progressIn(QByteArrayView line)
{
    quint64 done = 0;
    quint64 total = 0;
    const char *end = line.data() + line.size();
    const auto [blank, doneError] = std::from_chars(line.data(), end, done);
    if (doneError != std::errc() || blank == end || *blank != ' ')
        return std::nullopt;
    const auto [stop, totalError] = std::from_chars(blank + 1, end, total);
    if (totalError != std::errc() || stop != end)
        return std::nullopt;
    return std::pair(done, total);
}

ProgressPipe::ProgressPipe(Report report) : m_report(std::move(report))
{
    std::array<int, 2> ends;
    if (::pipe2(ends.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_readEnd = FileDescriptor(ends[0]);
    m_writeEnd = FileDescriptor(ends[1]);
    m_notifier.emplace(m_readEnd.get(), QSocketNotifier::Read);
    connect(&*m_notifier, &QSocketNotifier::activated, this, &ProgressPipe::read);
}

void ProgressPipe::read()
{
    std::array<char, 4096> buffer;
    const ssize_t count = ::read(m_readEnd.get(), buffer.data(), buffer.size());
    if (count <= 0) {
        if (count == 0 || (errno != EAGAIN && errno != EINTR))
            m_notifier->setEnabled(false); // all writers have closed it
        return;
    }
    m_rest.append(buffer.data(), count);
    const qsizetype end = m_rest.lastIndexOf('\n');
    if (end >= 0) {
        const qsizetype begin = end > 0 ? m_rest.lastIndexOf('\n', end - 1) + 1 : 0;
        const auto progress = progressIn(QByteArrayView(m_rest).sliced(begin, end - begin));
        m_rest.remove(0, end + 1);
        if (progress)
            m_report(progress->first, progress->second);
    }
    if (m_rest.size() > maxLine) // then no line, whatever follows
        m_rest.resize(maxLine);
}
