#pragma once

#include "FileDescriptor.h"

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <mutex>
#include <stop_token>
#include <thread>

namespace standin
{

/// Says how far the work is to whoever started the program: a line "done total", in bytes, at most
/// ten a second, on the pipe that TOOLVANE_PROGRESS_FD names. It never waits for a slow reader,
/// which misses lines then, and a reader that is gone is no error. Without that variable, or if it
/// names anything but the writable end of a pipe above standard error, nothing is written.
///
/// May be used from several threads; lines never go back. runProgram() has to run around it, as a
/// pipe without a reader would end the program by a signal otherwise.
class Progress
{
public:
    /// Takes the variable out of the environment and closes the descriptor, so that no child gets
    /// either. To be made before the program opens anything: a number that is wrong must not be
    /// that of a file of its own.
    Progress();

    bool isWanted() const { return m_pipe.isOpen(); }

    /// Before this no line is written. What is done beyond the total is not told.
    void setTotal(std::uint64_t bytes) { m_total = bytes; }
    std::uint64_t total() const { return m_total; } ///< 0: not known yet

    /// Counts the total while the work is done, in a thread that no ending signal reaches, and only
    /// if the work takes long enough for somebody to want to know: with many small files, counting
    /// is a tenth of it. If counting fails, no line is written. The thread's end stops it.
    using Count = std::function<std::uint64_t(const std::stop_token &)>;
    [[nodiscard]] std::jthread countBeside(const Count &count);

    void add(std::uint64_t bytes);
    void setDone(std::uint64_t bytes);

    /// Writes that all is done, also if less was counted. To be called once, at the end of a run
    /// that succeeded, when no other thread uses this any more.
    void finish();

private:
    using Clock = std::chrono::steady_clock;

    void report();
    void write(std::uint64_t done, std::uint64_t total);

    FileDescriptor m_pipe;
    std::atomic<std::uint64_t> m_done = 0;
    std::atomic<std::uint64_t> m_total = 0; // 0: not known
    std::atomic<Clock::duration> m_nextLine = Clock::duration::min();
    std::mutex m_writing;
    std::uint64_t m_lastDone = 0; // of the last line
};

} // namespace standin
