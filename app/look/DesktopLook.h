#pragma once

#include "SettingsPortal.h"
#include "Theme.h"

#include <QFont>
#include <QObject>

/// Keeps the look that of the desktop while the program runs: light or dark, and the font. Light or
/// dark comes from the settings portal, or where that has no preference from the platform's own
/// palette. Lives for as long as the program, from Theme::install() on. Interface thread only.
class DesktopLook : public QObject
{
    Q_OBJECT

public:
    /// Shows what the desktop preferred last time, so that the first paint is right already; the
    /// portal is asked after that paint.
    DesktopLook();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void show(SettingsPortal::ColorScheme preferred);
    void readPlatform();

    SettingsPortal m_portal;
    SettingsPortal::ColorScheme m_preferred;
    Theme::Scheme m_platformScheme;
    QFont m_platformFont;
    bool m_painted = false;
    bool m_platformChanged = false; ///< The platform tells every window of one change.
};
