#pragma once

#include "JobList.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QHash>
#include <QObject>

#include <optional>
#include <utility>

class QWidget;

/// How a run ended, in one short sentence: "Zip is finished".
QString jobSummary(const JobDescription &job, JobOutcome outcome);

/// Shows how a run ended in a desktop notification that leads back to the run's page.
///
/// Calls `org.freedesktop.Notifications` on the session bus (freedesktop.org, Desktop Notifications
/// 1.2), never waits for an answer, and does nothing if no such server runs.
/// The bus is not touched before the first notification. Interface thread only.
class Notifier : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    /// Notifies of the runs of this list that end while none of our windows is active, except those
    /// that the user stopped, and of none after the window is hidden, which ends the program. List
    /// and window must outlive the notifier.
    Notifier(JobList &jobs, const QWidget &window, QObject *parent = nullptr);

Q_SIGNALS:
    /// The user chose a notification. The activation token lets the window come to the front; it is
    /// empty if the desktop gave none.
    void pageWanted(const QString &page, const QString &activationToken);

private Q_SLOTS: // called for signals of any program on the bus
    void onActivationToken(uint id, const QString &token);
    void onActionInvoked(uint id, const QString &action);
    void onNotificationClosed(uint id, uint reason);

private:
    struct Shown {
        QString page;
        QString activationToken;
    };

    void onJobEnded(const RunningJob &job, JobOutcome outcome);
    void notify(const JobDescription &job, JobOutcome outcome);
    void connectToBus();
    void send(const JobDescription &job, JobOutcome outcome, const QStringList &capabilities);
    Shown *shownBySender(uint id);

    const QWidget &m_window;
    std::optional<QDBusConnection> m_bus;
    QHash<std::pair<QString, uint>, Shown> m_shown; ///< By the server's unique bus name and id.
};
