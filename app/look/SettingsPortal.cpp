#include "SettingsPortal.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFile>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto portalService = "org.freedesktop.portal.Desktop"_L1;
constexpr auto portalPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto settingsInterface = "org.freedesktop.portal.Settings"_L1;
constexpr auto appearance = "org.freedesktop.appearance"_L1;
constexpr auto colorScheme = "color-scheme"_L1;
constexpr int deepestWrapping = 4;

// Without an address the bus library would start a program to make a bus, and wait for it.
bool hasSessionBus()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")
        || QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus"_L1);
}

} // namespace

void SettingsPortal::open()
{
    if (!hasSessionBus())
        return;
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(portalService, portalPath, settingsInterface, u"SettingChanged"_s, this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    QDBusMessage question =
        QDBusMessage::createMethodCall(portalService, portalPath, settingsInterface, u"Read"_s);
    question << QString(appearance) << QString(colorScheme);
    auto *answer = new QDBusPendingCallWatcher(bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, &SettingsPortal::tellAnswer);
}

void SettingsPortal::tellAnswer(QDBusPendingCallWatcher *answer)
{
    answer->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *answer;
    const auto error = reply.error().type();
    if (error == QDBusError::NoReply || error == QDBusError::Timeout)
        return; // it may only be slow, and what was preferred last time still stands
    Q_EMIT colorSchemeTold(reply.isError() ? ColorScheme::NoPreference
                                           : colorSchemeOf(reply.value().variant()));
}

void SettingsPortal::settingChanged(const QString &group, const QString &key,
                                    const QDBusVariant &value)
{
    if (group == appearance && key == colorScheme)
        Q_EMIT colorSchemeTold(colorSchemeOf(value.variant()));
}

SettingsPortal::ColorScheme SettingsPortal::colorSchemeOf(const QVariant &value)
{
    QVariant inner = value;
    for (int i = 0; i < deepestWrapping && inner.metaType() == QMetaType::fromType<QDBusVariant>();
         ++i)
        inner = inner.value<QDBusVariant>().variant();
    if (inner.metaType() != QMetaType::fromType<uint>())
        return ColorScheme::NoPreference;
    switch (inner.toUInt()) {
    case uint(ColorScheme::Dark):
        return ColorScheme::Dark;
    case uint(ColorScheme::Light):
        return ColorScheme::Light;
    default:
        return ColorScheme::NoPreference;
    }
}

#include "moc_SettingsPortal.cpp" // here, where QDBusVariant is known
