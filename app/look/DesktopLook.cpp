#include "DesktopLook.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QEvent>
#include <QFile>
#include <QFontDatabase>
#include <QSettings>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto preferenceKey = "Look/ColorScheme"_L1;
constexpr auto portalService = "org.freedesktop.portal.Desktop"_L1;
constexpr auto portalPath = "/org/freedesktop/portal/desktop"_L1;
constexpr auto settingsInterface = "org.freedesktop.portal.Settings"_L1;
constexpr auto appearance = "org.freedesktop.appearance"_L1;
constexpr auto colorScheme = "color-scheme"_L1;
constexpr uint noPreference = 0; // the portal's own numbers
constexpr uint preferDark = 1;
constexpr uint preferLight = 2;
constexpr int maxWrapping = 4;

QFont platformFont()
{
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont);
}

// Checks what the portal or the settings file says. Older portals wrap it twice.
uint preferenceOf(QVariant value)
{
    for (int i = 0; i < maxWrapping && value.metaType() == QMetaType::fromType<QDBusVariant>(); ++i)
        value = value.value<QDBusVariant>().variant();
    const uint number = value.metaType() == QMetaType::fromType<uint>() ? value.toUInt() : 0;
    return number <= preferLight ? number : noPreference;
}

// Without an address the bus library would start a program to make a bus, and wait for it.
bool hasSessionBus()
{
    return !qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")
        || QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + "/bus"_L1);
}

} // namespace

DesktopLook::DesktopLook()
    : m_preference(preferenceOf(QSettings().value(preferenceKey).toUInt())),
      m_platformScheme(Theme::current()), m_platformFont(platformFont())
{
    show();
    qApp->installEventFilter(this);
}

bool DesktopLook::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint && !std::exchange(m_painted, true))
        QTimer::singleShot(0, this, &DesktopLook::openPortal);
    if (event->type() == QEvent::ThemeChange && !std::exchange(m_platformChanged, true))
        QTimer::singleShot(0, this, &DesktopLook::readPlatform);
    return QObject::eventFilter(watched, event);
}

void DesktopLook::openPortal()
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
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        const auto error = reply.error().type();
        if (error == QDBusError::NoReply || error == QDBusError::Timeout)
            return; // it may only be slow, and what was preferred last time still holds
        prefer(reply.isError() ? noPreference : preferenceOf(reply.value().variant()));
    });
}

void DesktopLook::settingChanged(const QString &group, const QString &key,
                                 const QDBusVariant &value)
{
    if (group == appearance && key == colorScheme)
        prefer(preferenceOf(value.variant()));
}

void DesktopLook::prefer(uint preference)
{
    if (std::exchange(m_preference, preference) == preference)
        return;
    QSettings().setValue(preferenceKey, preference);
    readPlatform(); // what it was may have changed while the preference hid it
}

void DesktopLook::show()
{
    if (m_preference == preferDark)
        Theme::apply(Theme::Scheme::Dark);
    else
        Theme::apply(m_preference == preferLight ? Theme::Scheme::Light : m_platformScheme);
}

void DesktopLook::readPlatform()
{
    m_platformChanged = false;
    if (const QFont font = platformFont(); std::exchange(m_platformFont, font) != font)
        Theme::setFont(font);
    if (m_preference == noPreference) {
        QApplication::setPalette(QPalette()); // what is left then is the platform's
        m_platformScheme = Theme::schemeOf(QApplication::palette());
    }
    show();
}

#include "moc_DesktopLook.cpp" // here, where QDBusVariant is known
