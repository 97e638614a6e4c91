#pragma once

#include <QObject>

class ContainerBox;
class QAction;
class QToolBar;
class QWidget;

/// The application's delegate. Its outlets are the windows and the main window's parts, set by
/// MainWindow::connectOutlets() and Application; it owns none of them, and they are null before.
/// Interface thread only.
class AppDelegate : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    QToolBar *toolbar = nullptr;
    /// Carries the application's name in the toolbar.
    QAction *appNameItem = nullptr;
    /// The main window's page area, and the parent of all pages.
    ContainerBox *container = nullptr;
    /// The main window.
    QWidget *window = nullptr;
    /// May stay null: then there is none to hide.
    QWidget *loginWindow = nullptr;

    /// Shows the main window and hides the login window: the tools need no login.
    void applicationDidFinishLaunching();

    /// Always: hidden windows do not keep the program alive.
    static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }

    /// Opens the maker's web site in the user's browser: the address in the settings
    /// (`Addresses/WebSite`), else the one that was compiled in. Whether that works is not checked.
    void goWebsite();
};
