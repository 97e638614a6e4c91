#pragma once

#include <QPalette>

class QFont;

/// Toolvane's light and dark look: palettes, the proxy style, the fonts of titles. Interface thread
/// only. Widgets set no colour and no font size of their own: the label classes of util/widgets
/// that differ (titles, hints) get theirs here, by class name, so that a change reaches all.
class Theme
{
public:
    Theme() = delete;

    enum class Scheme { Light, Dark };

    /// Puts style, palette and fonts in place, in the scheme of the desktop's own palette. Called
    /// once, after the application object is made and before the first widget.
    static void install();

    /// Changes to the scheme; every open window follows at once. The scheme that is already shown
    /// costs nothing.
    static void apply(Scheme scheme);

    /// Shows everything in this font; titles are derived from it. Open windows follow at once.
    static void setFont(const QFont &font);

    /// The scheme that is shown now.
    static Scheme current();

    /// Light or dark, by whether the palette's text is darker than its windows.
    static Scheme schemeOf(const QPalette &palette);

    /// All roles of all groups. `Light` is the face of a card, `BrightText` what warns.
    static QPalette palette(Scheme scheme);

    /// What differs in a sidebar; the other roles remain those of the window. `Window` is the
    /// background of its rows, `Highlight` the colour of marks on them. Its texts are dark in both
    /// schemes, because rows stay light under the pointer and when selected. The sidebar sets this
    /// palette itself, and again at each QEvent::PaletteChange.
    static QPalette sidebarPalette(Scheme scheme);
};
