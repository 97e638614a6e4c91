#include "RunToEnd.h"

#include <poll.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <thread>

namespace standin
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr ssize_t smallRead = 16384;
constexpr auto gatherInterval = std::chrono::milliseconds(1);
constexpr std::size_t maxLine = 1000; // bytes

// Reads once; closes the descriptor at its end.
void readSome(FileDescriptor &from, const OutputSink &sink)
{
    std::array<char, 65536> buffer;
    const auto count = ::read(from.number(), buffer.data(), buffer.size());
    if (count > 0) {
        sink({buffer.data(), static_cast<std::size_t>(count)});
        // A program that writes in small pieces would wake us for each: let some gather in the
        // pipe.
        if (count < smallRead)
            std::this_thread::sleep_for(gatherInterval);
    } else if (count == 0 || errno != EINTR)
        from.close();
}

int remaining(Clock::time_point deadline, std::chrono::milliseconds timeout)
{
    if (timeout == noTimeout)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    return std::max(0, static_cast<int>(left.count()));
}

// False if the time was over first.
bool drain(FileDescriptor &output, const OutputSink &sink, FileDescriptor &errors,
           const OutputSink &errorSink, std::chrono::milliseconds timeout)
{
    const auto deadline = Clock::now() + timeout;
    while (output.isOpen() || errors.isOpen()) {
        std::array<pollfd, 2> events{{{output.number(), POLLIN, 0}, {errors.number(), POLLIN, 0}}};
        const int ready = ::poll(events.data(), events.size(), remaining(deadline, timeout));
        if (ready == 0)
            return false;
        if (ready > 0 && events[0].revents)
            readSome(output, sink);
        if (ready > 0 && events[1].revents)
            readSome(errors, errorSink);
    }
    return true;
}

Command connected(Command command, const Pipe &output, const Pipe &errors)
{
    command.output = output.writeEnd.number();
    command.errors = errors.writeEnd.number();
    return command;
}

} // namespace

void LineSplitter::add(std::string_view bytes)
{
    while (!bytes.empty()) {
        const std::size_t length = std::min(bytes.find_first_of("\r\n"), bytes.size());
        m_line += bytes.substr(0, std::min(length, maxLine - m_line.size()));
        bytes.remove_prefix(length);
        if (bytes.empty())
            return;
        finish();
        bytes.remove_prefix(1);
    }
}

void LineSplitter::finish()
{
    if (!m_line.empty())
        m_take(m_line);
    m_line.clear();
}

CapturedChild::CapturedChild(Command command)
    : m_program(command.program), m_isReason(command.isReason),
      m_child(connected(std::move(command), m_output, m_errors))
{
    m_output.writeEnd.close();
    m_errors.writeEnd.close();
}

Finished CapturedChild::finish(const OutputSink &sink, std::chrono::milliseconds timeout)
{
    std::string words;
    LineSplitter errors([this, &words](std::string_view line) {
        if (!m_isReason || m_isReason(line))
            words = line;
    });
    const auto take = [&errors](std::string_view bytes) { errors.add(bytes); };
    if (!drain(m_output.readEnd, sink, m_errors.readEnd, take, timeout))
        m_child.kill();
    errors.finish();
    const ChildEnd end = m_child.wait();
    std::ranges::replace_if(
        words, [](unsigned char c) { return std::iscntrl(c); }, ' ');
    return {end, words.empty() ? m_program + " ended with " + end.text() : words};
}

Finished runToEnd(const Command &command, const OutputSink &sink, std::chrono::milliseconds timeout)
{
    return CapturedChild(command).finish(sink, timeout);
}

} // namespace standin
