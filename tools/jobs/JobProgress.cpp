#include "JobProgress.h"

#include "Job.h"
#include "MiscTool.h"

#include <QLocale>
#include <QtGlobal>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

constexpr qint64 estimateInterval = 5000;
constexpr qint64 second = 1000;
constexpr qint64 minute = 60 * second;
constexpr qint64 hour = 60 * minute;
constexpr qint64 maxLeft = 100 * hour; // beyond that, nothing sensible can be said

QString rounded(const QString &text, qint64 milliseconds, qint64 unit)
{
    return text.arg((milliseconds + unit / 2) / unit);
}

QString leftText(qint64 milliseconds)
{
    if (milliseconds >= 2 * hour)
        return rounded(qtTrId("Jobs.Left.Hours"), milliseconds, hour);
    if (milliseconds >= minute)
        return rounded(qtTrId("Jobs.Left.Minutes"), milliseconds, minute);
    return qtTrId("Jobs.Left").arg(elapsedText(std::max(milliseconds, second)));
}

} // namespace

std::optional<qint64> JobProgress::estimated(qint64 elapsed) const
{
    if (m_done == 0)
        return std::nullopt;
    const double left = double(elapsed) * double(m_total - m_done) / double(m_done);
    return left < double(maxLeft) ? std::optional(qint64(left)) : std::nullopt;
}

void JobProgress::set(quint64 done, quint64 total, qint64 elapsed)
{
    if (total == 0 || done > total)
        return;
    m_done = done;
    m_total = total;
    if (elapsed < m_nextEstimate)
        return;
    m_nextEstimate = elapsed + estimateInterval;
    m_left = estimated(elapsed);
}

void JobProgress::setItems(quint64 items, quint64 bytes)
{
    m_done = items;
    m_total = 0;
    m_bytes = bytes;
}

std::optional<int> JobProgress::percent() const
{
    if (m_total == 0)
        return std::nullopt;
    return m_done == m_total ? 100 : std::min(99, int(100 * (double(m_done) / double(m_total))));
}

QString JobProgress::text() const
{
    if (m_total == 0 && m_done == 0)
        return {};
    if (m_total == 0)
        return qtTrId("Jobs.Items")
            .arg(QLocale().toString(m_done), MiscTool::convertBytes(m_bytes));
    const QString share = qtTrId("Jobs.Percent").arg(*percent());
    return m_left && m_done < m_total ? share + u" · "_s + leftText(*m_left) : share;
}
