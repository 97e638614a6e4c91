#include "RunToEnd.h"

#include "LastWords.h"

#include <poll.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <thread>

namespace standin
{

namespace
{

using Clock = std::chrono::steady_clock;

constexpr ssize_t fewBytes = 16384;
constexpr auto untilMoreGathered = std::chrono::milliseconds(1);

// Reads once; closes the descriptor at its end.
void readSome(FileDescriptor &from, const OutputSink &sink)
{
    std::array<char, 65536> buffer;
    const auto count = ::read(from.number(), buffer.data(), buffer.size());
    if (count > 0) {
        sink({buffer.data(), static_cast<std::size_t>(count)});
        // Who writes in small pieces would wake us for each: let some gather in the pipe.
        if (count < fewBytes)
            std::this_thread::sleep_for(untilMoreGathered);
    } else if (count == 0 || errno != EINTR)
        from.close();
}

int remaining(Clock::time_point deadline, std::chrono::milliseconds limit)
{
    if (limit == noLimit)
        return -1;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(deadline - Clock::now());
    return std::max(0, static_cast<int>(left.count()));
}

// False when the time was over first.
bool drain(FileDescriptor &output, const OutputSink &sink, FileDescriptor &errors,
           const OutputSink &errorSink, std::chrono::milliseconds limit)
{
    const auto deadline = Clock::now() + limit;
    while (output.isOpen() || errors.isOpen()) {
        std::array<pollfd, 2> events{{{output.number(), POLLIN, 0}, {errors.number(), POLLIN, 0}}};
        const int ready = ::poll(events.data(), events.size(), remaining(deadline, limit));
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

CapturedChild::CapturedChild(Command command)
    : m_program(command.program), m_hollowWords(command.hollowWords),
      m_child(connected(std::move(command), m_output, m_errors))
{
    m_output.writeEnd.close();
    m_errors.writeEnd.close();
}

Finished CapturedChild::finish(const OutputSink &sink, std::chrono::milliseconds limit)
{
    LastWords words(m_hollowWords);
    const OutputSink keepWords = [&words](std::string_view bytes) { words.add(bytes); };
    if (!drain(m_output.readEnd, sink, m_errors.readEnd, keepWords, limit))
        m_child.kill();
    const ChildEnd end = m_child.wait();
    return {end, words.text().empty() ? m_program + " ended with " + end.text() : words.text()};
}

Finished runToEnd(const Command &command, const OutputSink &sink, std::chrono::milliseconds limit)
{
    return CapturedChild(command).finish(sink, limit);
}

} // namespace standin
