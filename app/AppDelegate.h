#pragma once

#include <QObject>

class ContainerBox;
class QAction;
class QToolBar;
class QWidget;

/// The application's delegate: knows the windows and the main window's parts, owns none of them.
class AppDelegate : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    QToolBar *toolbar = nullptr;
    QAction *appNameItem = nullptr; ///< Carries the application's name in the toolbar.
    ContainerBox *container = nullptr; ///< The main window's page area.
    QWidget *window = nullptr; ///< The main window.
    QWidget *loginWindow = nullptr; ///< May be missing.

    /// Shows the main window and hides the login window: the tools need no login.
    void applicationDidFinishLaunching();

    static bool applicationShouldTerminateAfterLastWindowClosed() { return true; }

    /// Opens the maker's web site in the user's browser.
    void goWebsite();
};
