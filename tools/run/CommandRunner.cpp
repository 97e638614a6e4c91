#include "CommandRunner.h"

#include "CommandRun.h"

CommandRunner::CommandRunner(JobList &jobs) : m_jobs(&jobs)
{
}

CommandRunner::~CommandRunner()
{
    for (const QPointer<CommandRun> &run : m_runs) {
        if (run)
            run->disown();
    }
}

QFuture<CommandResult> CommandRunner::run(const Command &command, const JobDescription &description)
{
    std::erase_if(m_runs, [](const auto &run) { return !run || run->isSettled(); });
    auto *run = new CommandRun(command, description, m_jobs); // owned by the list of jobs
    m_runs.push_back(run);
    return run->start();
}
