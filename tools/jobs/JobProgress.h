#pragma once

#include <QString>

#include <optional>

/// How far a job is: a share of a known total, or what is done so far of work without one.
class JobProgress
{
public:
    /// In bytes, or in whatever the work counts. `elapsed` is the job's time so far in
    /// milliseconds, by which the time left is estimated: after five seconds, and anew every five,
    /// so that it can be read. Nothing changes unless there is a total and no more is done.
    void set(quint64 done, quint64 total, qint64 elapsed);
    void setItems(quint64 items, quint64 bytes); ///< There is no total.

    /// 0 to 100, rounded down; none without a total.
    std::optional<int> percent() const;
    /// In the user's language: "43 % · 0:35 left", "12,345 items, 3.2 GB". Empty if nothing is
    /// known yet.
    QString text() const;

private:
    std::optional<qint64> estimated(qint64 elapsed) const;

    quint64 m_done = 0; ///< Items, if there is no total.
    quint64 m_total = 0;
    quint64 m_bytes = 0; ///< Of the items.
    std::optional<qint64> m_left; ///< In milliseconds.
    qint64 m_nextEstimate = 5000; ///< As a time since the job's start, in milliseconds.
};
