#include "JobStrip.h"

#include "JobRow.h"

#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace
{

constexpr std::chrono::milliseconds showDelay = 300ms;
constexpr std::size_t maxVisibleRows = 3;

} // namespace

JobStrip::JobStrip(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setWidgetResizable(true);
    setWidget(new QWidget);
    auto *layout = new QVBoxLayout(widget());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_showTimer.setSingleShot(true);
    connect(&m_showTimer, &QTimer::timeout, this, &JobStrip::updateRows);
    m_elapsedTimer.setInterval(1s);
    connect(&m_elapsedTimer, &QTimer::timeout, this, &JobStrip::showElapsed);
}

void JobStrip::setJobs(JobList &jobs)
{
    m_jobs = &jobs;
    connect(&jobs, &JobList::changed, this, &JobStrip::updateRows);
    updateRows();
}

QSize JobStrip::sizeHint() const
{
    if (m_rows.empty())
        return {0, 0};
    const auto shown = static_cast<int>(std::min(m_rows.size(), maxVisibleRows));
    return {m_rows.front()->sizeHint().width(), m_rows.front()->sizeHint().height() * shown};
}

void JobStrip::updateRows()
{
    removeEnded();
    addRows();
    if (!m_rows.empty() && !m_elapsedTimer.isActive())
        m_elapsedTimer.start();
    if (m_rows.empty())
        m_elapsedTimer.stop();
    updateGeometry();
    setVisible(!m_rows.empty());
}

void JobStrip::removeEnded()
{
    std::erase_if(m_rows, [this](JobRow *row) {
        if (m_jobs->find(row->id()))
            return false;
        row->hide();
        row->deleteLater(); // the job may have ended inside a click on its own button
        return true;
    });
}

void JobStrip::addRows()
{
    for (const RunningJob &job : m_jobs->running()) {
        const auto left = showDelay - std::chrono::milliseconds(job.started.elapsed());
        if (std::ranges::find(m_rows, job.id, &JobRow::id) != m_rows.end())
            continue;
        if (left.count() <= 0)
            addRow(job);
        else if (!m_showTimer.isActive())
            m_showTimer.start(left); // later ones are younger
    }
}

void JobStrip::addRow(const RunningJob &job)
{
    auto *row = new JobRow(job);
    connect(row, &JobRow::pageWanted, this, &JobStrip::pageWanted);
    connect(row, &JobRow::stopWanted, m_jobs, &JobList::stop);
    widget()->layout()->addWidget(row);
    m_rows.push_back(row);
}

void JobStrip::showElapsed()
{
    for (JobRow *row : m_rows)
        row->showElapsed();
}
