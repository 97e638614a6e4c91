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

struct RoleColor {
    Role role;
    QRgb color;
};

constexpr qreal titleScale = 1.5;

constexpr RoleColor lightColors[] = {
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

constexpr RoleColor darkColors[] = {
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

// The names of the widget classes that differ from the rest.
constexpr char titleClass[] = "PageTitle";
constexpr char sectionClass[] = "SectionTitle";
constexpr char hintClass[] = "HintLabel";
constexpr char sidebarClass[] = "HoverTableView";
constexpr char menuClass[] = "QMenu"; // pop-up buttons' lists take theirs from here, too

QColor mixed(const QColor &first, const QColor &second)
{
    return QColor((first.red() + second.red()) / 2, (first.green() + second.green()) / 2,
                  (first.blue() + second.blue()) / 2);
}

// Disabled texts stand halfway between themselves and what they stand on.
void dimDisabled(QPalette &palette)
{
    const std::pair<Role, Role> textOnGround[] = {
        {QPalette::WindowText, QPalette::Window}, {QPalette::Text, QPalette::Base},
        {QPalette::ButtonText, QPalette::Button}, {QPalette::PlaceholderText, QPalette::Base},
        {QPalette::Link, QPalette::Window},       {QPalette::BrightText, QPalette::Window}};
    for (const auto &[text, ground] : textOnGround) {
        palette.setColor(
            QPalette::Disabled, text,
            mixed(palette.color(QPalette::Active, text), palette.color(QPalette::Active, ground)));
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, palette.color(QPalette::Mid));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText,
                     palette.color(QPalette::Disabled, QPalette::Text));
}

QPalette hintPalette(const QPalette &palette)
{
    QPalette hint = palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        hint.setColor(group, QPalette::WindowText, palette.color(group, QPalette::PlaceholderText));
    return hint;
}

// Qt paints the rows of a pop-up button's list as windows, on a list painted as a base.
QPalette menuPalette(const QPalette &palette)
{
    QPalette menu = palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        menu.setColor(group, QPalette::Window, palette.color(group, QPalette::Base));
    return menu;
}

// A desktop gives its font in points or in pixels.
QFont scaled(QFont font, qreal scale)
{
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * scale);
    else
        font.setPixelSize(qRound(font.pixelSize() * scale));
    return font;
}

// Class fonts are derived from the desktop's font, so they grow with it.
void applyFonts()
{
    QFont title = scaled(QApplication::font(), titleScale);
    title.setWeight(QFont::DemiBold);
    QApplication::setFont(title, titleClass);
    QFont section = QApplication::font();
    section.setWeight(QFont::DemiBold);
    QApplication::setFont(section, sectionClass);
}

} // namespace

void Theme::install()
{
    const Scheme desktop = schemeOf(QApplication::palette());
    QApplication::setStyle(new ToolvaneStyle);
    applyFonts();
    apply(desktop);
}

void Theme::setFont(const QFont &font)
{
    QApplication::setFont(font);
    applyFonts(); // a new font for all forgets those of classes
}

void Theme::apply(Scheme scheme)
{
    const QPalette chosen = palette(scheme);
    if (QApplication::palette() == chosen)
        return;
    QApplication::setPalette(chosen);
    QApplication::setPalette(sidebarPalette(scheme), sidebarClass);
    QApplication::setPalette(hintPalette(chosen), hintClass);
    QApplication::setPalette(menuPalette(chosen), menuClass);
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
    for (const RoleColor &entry : scheme == Scheme::Dark ? darkColors : lightColors)
        palette.setColor(entry.role, QColor(entry.color));
    dimDisabled(palette);
    return palette;
}

QPalette Theme::sidebarPalette(Scheme scheme)
{
    QPalette sidebar = palette(scheme);
    const QColor ground(scheme == Scheme::Dark ? sidebarDark : sidebarLight);
    for (const Role role : {QPalette::Window, QPalette::Base, QPalette::AlternateBase})
        sidebar.setColor(role, ground);
    for (const Role role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
        sidebar.setColor(role, QColor(sidebarText));
    if (scheme == Scheme::Dark)
        sidebar.setColor(QPalette::Highlight, QColor(sidebarMark));
    return sidebar;
}
