#pragma once

#include "JobList.h"

#include <QObject>

#include <optional>

/// Shows on the program's icon in the desktop's task bar how far the one running job is, or how
/// many there are.
///
/// Sends the signal `com.canonical.Unity.LauncherEntry.Update` on the session bus, which docks and
/// task bars listen to, and never waits for the bus. It is sent only while a job runs, and once
/// more when nothing is to be shown any longer. Interface thread only.
class TaskBar : public QObject
{
    Q_OBJECT

public:
    /// The list must outlive this.
    explicit TaskBar(const JobList &jobs, QObject *parent = nullptr);

private:
    struct Shown {
        std::optional<int> percent = {};
        qint64 count = 0; ///< 0: none is shown.
        bool operator==(const Shown &) const = default;
    };
    Shown wanted() const;
    void update();

    const JobList &m_jobs;
    Shown m_shown;
};
