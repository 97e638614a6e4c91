#pragma once

class QString;
class QWidget;

/// Which window the user works in, as far as the desktop says so. Interface thread only.
namespace WindowActivation
{

/// Notes from now on whether a window of ours is ever active. Call it once, before the first
/// window.
void watch();

/// Whether a window of ours that is not active may become so, and we notice: only with a desktop
/// that has done it before. False without watch(), and on an X server without a window manager,
/// where windows keep or lose the keyboard for reasons of nobody's.
bool isReported();

/// Shows a window above others, restores it if it is minimised, and gives it the keyboard. Desktops
/// refuse that to a program without a token of the user's start or click: on Wayland that of
/// xdg-activation, on X11 the startup notification id, which ends with the time. It may be empty;
/// then X11 takes it for a click of this moment.
void bringToFront(QWidget &window, const QString &token);

} // namespace WindowActivation
