#pragma once

#include "Theme.h"

#include <QFont>
#include <QObject>

class QDBusVariant;

/// Keeps the look that of the desktop while the program runs: light or dark, and the font. Light or
/// dark comes from the settings portal on the session bus, as XDG Desktop Portal documents it
/// (namespace "org.freedesktop.appearance" of org.freedesktop.portal.Settings); if that has no
/// preference, from the platform's own palette. What the portal answers is checked: a value of
/// another type or meaning is no preference, and so is a missing portal. Exists for as long as the
/// program, from Theme::install() on. Interface thread only.
class DesktopLook : public QObject
{
    Q_OBJECT

public:
    /// Shows what the desktop preferred last time, so that the first paint is right already. The
    /// portal is called after that paint, and its answer is not waited for. Needs the application
    /// object and Theme::install().
    DesktopLook();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private Q_SLOTS: // called over the bus, for signals of the portal
    void settingChanged(const QString &group, const QString &key, const QDBusVariant &value);

private:
    void openPortal();
    /// Remembers the portal's preference in the settings and shows it.
    void prefer(uint preference);
    void show();
    /// Takes over what the platform has now: its font, and its scheme if the portal has none.
    void readPlatform();

    uint m_preference; ///< In the portal's numbers: 0 none, 1 dark, 2 light.
    Theme::Scheme m_platformScheme;
    QFont m_platformFont;
    bool m_painted = false;
    bool m_platformChanged = false; ///< One change reaches every window.
};
