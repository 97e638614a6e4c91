#include "Job.h"

#include "JobList.h"

#include <utility>

Job::Job(JobList *list, JobId id) : m_list(list), m_id(id)
{
}

Job::Job(Job &&other) noexcept : m_list(std::exchange(other.m_list, nullptr)), m_id(other.m_id)
{
}

Job &Job::operator=(Job &&other) noexcept
{
    if (this != &other) {
        end(JobOutcome::Failed);
        m_list = std::exchange(other.m_list, nullptr);
        m_id = other.m_id;
    }
    return *this;
}

Job::~Job()
{
    end(JobOutcome::Failed);
}

void Job::end(JobOutcome outcome)
{
    if (JobList *list = std::exchange(m_list, nullptr))
        list->end(m_id, outcome);
}
