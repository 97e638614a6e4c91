#include "Theme.h"

#include "ToolvaneStyle.h"

#include <QApplication>
#include <QFont>
#include <QToolTip>

#include <initializer_list>
#include <utility>

namespace
{

using Role = QPalette::ColorRole;

constexpr qreal titleScale = 1.5;

constexpr std::pair<Role, QRgb> lightColors[] = {
    {QPalette::Window, 0xf3f5f6},      {QPalette::WindowText, 0x1d2327},
    {QPalette::Base, 0xffffff},        {QPalette::AlternateBase, 0xf3f5f6},
    {QPalette::Text, 0x1d2327},        {QPalette::PlaceholderText, 0x667079},
    {QPalette::Button, 0xf1f3f4},      {QPalette::ButtonText, 0x1d2327},
    {QPalette::Light, 0xffffff},       {QPalette::Midlight, 0xe1e5e8},
    {QPalette::Mid, 0xc6cdd2},         {QPalette::Dark, 0x848d95},
    {QPalette::Shadow, 0x59636b},      {QPalette::BrightText, 0xb3261e},
    {QPalette::Highlight, 0x0b7285},   {QPalette::HighlightedText, 0xffffff},
    {QPalette::Link, 0x0b6a7c},        {QPalette::LinkVisited, 0x6b4a8a},
    {QPalette::ToolTipBase, 0x2b3136}, {QPalette::ToolTipText, 0xf3f5f6},
};

constexpr std::pair<Role, QRgb> darkColors[] = {
    {QPalette::Window, 0x1f2326},      {QPalette::WindowText, 0xe7eaec},
    {QPalette::Base, 0x1a1d20},        {QPalette::AlternateBase, 0x22272a},
    {QPalette::Text, 0xe7eaec},        {QPalette::PlaceholderText, 0x949da5},
    {QPalette::Button, 0x3a4147},      {QPalette::ButtonText, 0xe7eaec},
    {QPalette::Light, 0x292e32},       {QPalette::Midlight, 0x343a3f},
    {QPalette::Mid, 0x4b5359},         {QPalette::Dark, 0x808a92},
    {QPalette::Shadow, 0x0c0e10},      {QPalette::BrightText, 0xff9a8c},
    {QPalette::Highlight, 0x45b8c8},   {QPalette::HighlightedText, 0x04262c},
    {QPalette::Link, 0x62cbd9},        {QPalette::LinkVisited, 0xc5a6e8},
    {QPalette::ToolTipBase, 0x3a4147}, {QPalette::ToolTipText, 0xf3f5f6},
};

constexpr QRgb sidebarLight = 0xe6ebee;
constexpr QRgb sidebarDark = 0x7f868e;
constexpr QRgb sidebarText = 0x0b0f12;
constexpr QRgb sidebarMark = 0x053c47; // the accent, deep enough for the dark scheme's grey

QColor mixed(const QColor &first, const QColor &second)
{
    return QColor((first.red() + second.red()) / 2, (first.green() + second.green()) / 2,
                  (first.blue() + second.blue()) / 2);
}

// A disabled text's colour is halfway between the usual one and its ground's.
void dimDisabled(QPalette &palette)
{
    const std::pair<Role, Role> textOnGround[] = {
        {QPalette::WindowText, QPalette::Window}, {QPalette::Text, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button}, {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::Link, QPalette::Window},       {QPalette::BrightText, QPalette::Window}};
    for (const auto &[text, ground] : textOnGround)
        palette.setColor(QPalette::Disabled, text,
                         mixed(palette.color(text), palette.color(ground)));
    palette.setColor(QPalette::Disabled, QPalette::Base, palette.color(QPalette::Window));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, palette.color(QPalette::Mid));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText,
                     palette.color(QPalette::Disabled, QPalette::Text));
}

// The palette with the colours of one role for other roles as well.
QPalette withRole(QPalette palette, std::initializer_list<Role> roles, Role source)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        for (const Role role : roles)
            palette.setColor(group, role, palette.color(group, source));
    return palette;
}

// A heading's font is derived from the desktop's, which is in points or in pixels.
QFont headingFont(qreal scale)
{
    QFont font = QApplication::font();
    font.setWeight(QFont::DemiBold);
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * scale);
    else
        font.setPixelSize(qRound(font.pixelSize() * scale));
    return font;
}

void applyHeadingFonts()
{
    QApplication::setFont(headingFont(titleScale), "PageTitle");
    QApplication::setFont(headingFont(1), "SectionTitle");
}

} // namespace

void Theme::install()
{
    const Scheme desktop = schemeOf(QApplication::palette());
    QApplication::setStyle(new ToolvaneStyle);
    applyHeadingFonts();
    apply(desktop);
}

void Theme::setFont(const QFont &font)
{
    QApplication::setFont(font);
    applyHeadingFonts(); // a new font for all forgets those of classes
}

void Theme::apply(Scheme scheme)
{
    const QPalette chosen = palette(scheme);
    if (QApplication::palette() == chosen)
        return;
    QApplication::setPalette(chosen);
    for (const char *quiet : {"HintLabel", "HintLine"})
        QApplication::setPalette(
            withRole(chosen, {QPalette::WindowText}, QPalette::PlaceholderText), quiet);
    // A menu lies above the window like a card. Lists of combo boxes take theirs from here, too.
    QApplication::setPalette(withRole(chosen, {QPalette::Window, QPalette::Base}, QPalette::Light),
                             "QMenu");
    QToolTip::setPalette(chosen); // tool tips keep the palette of their first showing otherwise
}

Theme::Scheme Theme::current()
{
    return schemeOf(QApplication::palette());
}

Theme::Scheme Theme::schemeOf(const QPalette &palette)
{
    return palette.color(QPalette::WindowText).lightness()
            > palette.color(QPalette::Window).lightness()
        ? Scheme::Dark
        : Scheme::Light;
}

QPalette Theme::palette(Scheme scheme)
{
    QPalette palette;
    for (const auto &[role, color] : scheme == Scheme::Dark ? darkColors : lightColors)
        palette.setColor(role, QColor(color));
    dimDisabled(palette);
    return palette;
}

QPalette Theme::sidebarPalette(Scheme scheme)
{
    const bool isDark = scheme == Scheme::Dark;
    QPalette sidebar;
    for (const Role role : {QPalette::Window, QPalette::Base, QPalette::AlternateBase})
        sidebar.setColor(role, QColor(isDark ? sidebarDark : sidebarLight));
    for (const Role role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        sidebar.setColor(role, QColor(sidebarText));
    sidebar.setColor(QPalette::Highlight,
                     isDark ? QColor(sidebarMark) : palette(scheme).color(QPalette::Highlight));
    return sidebar;
}
