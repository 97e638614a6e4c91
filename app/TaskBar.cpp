#include "TaskBar.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QVariantMap>

#include <utility>

using namespace Qt::StringLiterals;

TaskBar::TaskBar(const JobList &jobs, QObject *parent) : QObject(parent), m_jobs(jobs)
{
    connect(&jobs, &JobList::changed, this, &TaskBar::update);
    connect(&jobs, &JobList::progressed, this, &TaskBar::update);
}

TaskBar::Shown TaskBar::wanted() const
{
    const auto &running = m_jobs.running();
    if (running.size() > 1)
        return {.count = static_cast<qint64>(running.size())};
    return {.percent = running.empty() ? std::nullopt : running.front().progress.percent()};
}

void TaskBar::update()
{
    const Shown wanted = this->wanted();
    if (std::exchange(m_shown, wanted) == wanted)
        return;
    const QVariantMap properties{{u"progress"_s, wanted.percent.value_or(0) / 100.0},
                                 {u"progress-visible"_s, wanted.percent.has_value()},
                                 {u"count"_s, wanted.count},
                                 {u"count-visible"_s, wanted.count > 0}};
    auto message = QDBusMessage::createSignal(u"/com/canonical/Unity/LauncherEntry"_s,
                                              u"com.canonical.Unity.LauncherEntry"_s, u"Update"_s);
    message << u"application://%1.desktop"_s.arg(QGuiApplication::desktopFileName()) << properties;
    QDBusConnection::sessionBus().send(message);
}
