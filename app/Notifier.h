#pragma once

#include "JobList.h"

#include <QDBusConnection>
#include <QDBusContext>
#include <QHash>
#include <QObject>

#include <optional>
#include <utility>

class QWidget;

/// Tells the desktop how a run ended, in a notification that leads back to the run's page.
///
/// Speaks to `org.freedesktop.Notifications` of the session bus (freedesktop.org, Desktop
/// Notifications 1.2), never waits for an answer, and stays silent where there is no such server.
/// The bus is not touched before the first notification. Interface thread only.
class Notifier : public QObject, protected QDBusContext
{
    Q_OBJECT

public:
    /// Tells of the runs of this list that end while none of our windows is active, except those
    /// that the user stopped. Once the window is hidden, which ends the program, nothing is told.
    Notifier(JobList &jobs, const QWidget &window, QObject *parent = nullptr);

Q_SIGNALS:
    /// The user chose a notification. The token, where the desktop gave one, allows the window to
    /// come to the front.
    void pageWanted(const QString &page, const QString &activationToken);

private Q_SLOTS: // called by the bus, for signals of anybody who calls itself a server
    void onActivationToken(uint id, const QString &token);
    void onActionInvoked(uint id, const QString &action);
    void onNotificationClosed(uint id, uint reason);

private:
    struct Shown {
        QString page;
        QString activationToken;
    };
    struct Message {
        QString summary;
        QString body;
        QString page;
    };

    void tell(const RunningJob &job, JobOutcome outcome);
    void notify(const JobDescription &job, JobOutcome outcome);
    void connectToBus();
    void send(const Message &message, const QStringList &capabilities);
    Shown *shownBySender(uint id);

    const QWidget &m_window;
    std::optional<QDBusConnection> m_bus;
    QHash<std::pair<QString, uint>, Shown> m_shown; ///< By the server's own name on the bus and id.
};
