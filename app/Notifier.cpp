#include "Notifier.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>
#include <QWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto service = "org.freedesktop.Notifications"_L1; // its interface, too
constexpr auto objectPath = "/org/freedesktop/Notifications"_L1;
constexpr int defaultTimeout = -1; // the server's own

QDBusMessage callOf(const QString &method)
{
    return QDBusMessage::createMethodCall(service, objectPath, service, method);
}

bool isNews(const RunningJob &job, JobOutcome outcome)
{
    return outcome == JobOutcome::Succeeded
        || (outcome == JobOutcome::Failed && !job.stop.stop_requested());
}

} // namespace

QString jobSummary(const JobDescription &job, JobOutcome outcome)
{
    switch (outcome) {
    case JobOutcome::Succeeded:
        return qtTrId("Notice.Succeeded").arg(job.title);
    case JobOutcome::Failed:
        return qtTrId("Notice.Failed").arg(job.title);
    case JobOutcome::Stopped:
        return qtTrId("Notice.Stopped").arg(job.title);
    }
    Q_UNREACHABLE();
}

Notifier::Notifier(JobList &jobs, const QWidget &window, QObject *parent)
    : QObject(parent), m_window(window)
{
    connect(&jobs, &JobList::jobEnded, this, &Notifier::onJobEnded);
}

void Notifier::onJobEnded(const RunningJob &job, JobOutcome outcome)
{
    if (isNews(job, outcome) && m_window.isVisible() && !QApplication::activeWindow())
        notify(job.description, outcome);
}

void Notifier::notify(const JobDescription &job, JobOutcome outcome)
{
    connectToBus();
    auto *asked = new QDBusPendingCallWatcher(m_bus->asyncCall(callOf(u"GetCapabilities"_s)), this);
    connect(asked, &QDBusPendingCallWatcher::finished, this,
            [this, job, outcome](QDBusPendingCallWatcher *watcher) {
                watcher->deleteLater();
                const QDBusPendingReply<QStringList> reply = *watcher;
                if (reply.isValid()) // else no server runs
                    send(job, outcome, reply.value());
            });
}

// No sender is named: Qt would wait for the bus to look it up. shownBySender() checks it instead.
void Notifier::connectToBus()
{
    if (m_bus)
        return;
    m_bus = QDBusConnection::sessionBus();
    const auto listen = [this](const QString &signal, const char *slot) {
        m_bus->connect(QString(), objectPath, service, signal, this, slot);
    };
    listen(u"ActivationToken"_s, SLOT(onActivationToken(uint, QString)));
    listen(u"ActionInvoked"_s, SLOT(onActionInvoked(uint, QString)));
    listen(u"NotificationClosed"_s, SLOT(onNotificationClosed(uint, uint)));
}

void Notifier::send(const JobDescription &job, JobOutcome outcome, const QStringList &capabilities)
{
    const QString body =
        capabilities.contains("body-markup"_L1) ? job.subject.toHtmlEscaped() : job.subject;
    const QString show = qtTrId("Notice.Show");
    const QStringList actions = capabilities.contains("actions"_L1)
        ? QStringList{u"default"_s, show, u"show"_s, show}
        : QStringList();
    const QVariantMap hints{{u"desktop-entry"_s, u"toolvane"_s}};
    QDBusMessage call = callOf(u"Notify"_s);
    call << u"Toolvane"_s << 0U << u"toolvane"_s << jobSummary(job, outcome) << body << actions
         << hints << defaultTimeout;
    auto *sent = new QDBusPendingCallWatcher(m_bus->asyncCall(call), this);
    connect(sent, &QDBusPendingCallWatcher::finished, this,
            [this, page = job.page](QDBusPendingCallWatcher *watcher) {
                watcher->deleteLater();
                const QDBusPendingReply<uint> reply = *watcher;
                if (reply.isValid())
                    m_shown.insert({reply.reply().service(), reply.value()}, {page, {}});
            });
}

// Any program on the bus may send these signals. Those of the server that showed it count.
Notifier::Shown *Notifier::shownBySender(uint id)
{
    const auto found = m_shown.find({message().service(), id});
    return found == m_shown.end() ? nullptr : &*found;
}

void Notifier::onActivationToken(uint id, const QString &token)
{
    if (Shown *shown = shownBySender(id))
        shown->activationToken = token;
}

void Notifier::onActionInvoked(uint id, const QString &)
{
    if (Shown *shown = shownBySender(id))
        Q_EMIT pageWanted(shown->page, std::exchange(shown->activationToken, {}));
}

void Notifier::onNotificationClosed(uint id, uint)
{
    m_shown.remove({message().service(), id});
}
