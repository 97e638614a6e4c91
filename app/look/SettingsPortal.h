#pragma once

#include <QObject>

class QDBusPendingCallWatcher;
class QDBusVariant;

/// The desktop's preferred colours, from the settings portal on the session bus: the namespace
/// "org.freedesktop.appearance" of org.freedesktop.portal.Settings, as XDG Desktop Portal documents
/// it. Whatever it answers is checked; a value of another type or meaning is no preference.
/// Interface thread only.
class SettingsPortal : public QObject
{
    Q_OBJECT

public:
    enum class ColorScheme { NoPreference = 0, Dark = 1, Light = 2 };
    Q_ENUM(ColorScheme)

    using QObject::QObject;

    /// Asks once and listens from then on. Returns before the answer is there. Without a session
    /// bus nothing happens.
    void open();

    /// The meaning of a setting's value, however often it is wrapped: older portals wrap twice.
    static ColorScheme colorSchemeOf(const QVariant &value);

Q_SIGNALS:
    /// The answer to open(), and each change after it. A portal that is missing has no preference.
    void colorSchemeTold(SettingsPortal::ColorScheme scheme);

private Q_SLOTS:
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void tellAnswer(QDBusPendingCallWatcher *answer);
};
