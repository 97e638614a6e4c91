#include "ProcessCost.h"

#include "Row.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace
{

double clockNow()
{
    timespec now = {};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return double(now.tv_sec) + double(now.tv_nsec) * 1e-9;
}

double secondsOf(const timeval &time)
{
    return double(time.tv_sec) + double(time.tv_usec) * 1e-6;
}

// Without a forked copy of this process, whose pages would have to be copied.
pid_t start(const std::vector<std::string> &command)
{
    std::vector<char *> arguments;
    for (const std::string &word : command)
        arguments.push_back(const_cast<char *>(word.c_str()));
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    pid_t child = -1;
    if (posix_spawnp(&child, arguments[0], &quiet, nullptr, arguments.data(), environ) != 0)
        child = -1;
    posix_spawn_file_actions_destroy(&quiet);
    return child;
}

ProcessCost costUntilEnd(double begin, pid_t child)
{
    int status = 0;
    rusage usage = {};
    if (child < 0 || wait4(child, &status, 0, &usage) != child || status != 0) {
        std::fprintf(stderr, "the work to be measured failed\n");
        std::exit(2);
    }
    return {.processor = secondsOf(usage.ru_utime) + secondsOf(usage.ru_stime),
            .wall = clockNow() - begin,
            .memory = double(usage.ru_maxrss) / 1024};
}

} // namespace

ProcessCost ProcessCost::ofWork(const std::function<bool()> &work)
{
    std::fflush(stdout);
    const double begin = clockNow();
    const pid_t child = fork();
    if (child == 0)
        _exit(work() ? 0 : 1);
    return costUntilEnd(begin, child);
}

ProcessCost ProcessCost::ofProgram(const std::vector<std::string> &command)
{
    const double begin = clockNow();
    return costUntilEnd(begin, start(command));
}

ProcessCost ProcessCost::median(const std::vector<ProcessCost> &costs)
{
    const auto middle = [&costs](double ProcessCost::*figure) {
        std::vector<double> figures;
        for (const ProcessCost &cost : costs)
            figures.push_back(cost.*figure);
        return ::median(std::move(figures));
    };
    return {.processor = middle(&ProcessCost::processor),
            .wall = middle(&ProcessCost::wall),
            .memory = middle(&ProcessCost::memory)};
}
