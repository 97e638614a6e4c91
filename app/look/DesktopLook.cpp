#include "DesktopLook.h"

#include <QApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QSettings>
#include <QTimer>

#include <utility>

using namespace Qt::StringLiterals;
using ColorScheme = SettingsPortal::ColorScheme;

namespace
{

constexpr auto preferredKey = "Look/ColorScheme"_L1;

ColorScheme rememberedScheme()
{
    return SettingsPortal::colorSchemeOf(QSettings().value(preferredKey).toUInt());
}

QFont platformFont()
{
    return QFontDatabase::systemFont(QFontDatabase::GeneralFont);
}

} // namespace

DesktopLook::DesktopLook()
    : m_preferred(rememberedScheme()), m_platformScheme(Theme::current()),
      m_platformFont(platformFont())
{
    connect(&m_portal, &SettingsPortal::colorSchemeTold, this, [this](ColorScheme preferred) {
        if (std::exchange(m_preferred, preferred) == preferred)
            return;
        QSettings().setValue(preferredKey, uint(preferred));
        readPlatform(); // what it was may have changed while the preference hid it
    });
    show(m_preferred);
    qApp->installEventFilter(this);
}

bool DesktopLook::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Paint && !std::exchange(m_painted, true))
        QTimer::singleShot(0, &m_portal, &SettingsPortal::open);
    if (event->type() == QEvent::ThemeChange && !std::exchange(m_platformChanged, true))
        QTimer::singleShot(0, this, &DesktopLook::readPlatform);
    return QObject::eventFilter(watched, event);
}

void DesktopLook::show(ColorScheme preferred)
{
    if (preferred == ColorScheme::NoPreference)
        Theme::apply(m_platformScheme);
    else
        Theme::apply(preferred == ColorScheme::Dark ? Theme::Scheme::Dark : Theme::Scheme::Light);
}

void DesktopLook::readPlatform()
{
    m_platformChanged = false;
    if (const QFont font = platformFont(); std::exchange(m_platformFont, font) != font)
        Theme::setFont(font);
    if (m_preferred == ColorScheme::NoPreference) {
        QApplication::setPalette(QPalette()); // what is left then is the platform's
        m_platformScheme = Theme::schemeOf(QApplication::palette());
    }
    show(m_preferred);
}
