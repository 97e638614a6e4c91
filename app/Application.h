#pragma once

#include "AppDelegate.h"
#include "JobList.h"
#include "MainWindow.h"

#include <memory>

class HoverTableAppDelegate;
class LoginDelegate;
class Notifier;
class TaskBar;
struct StartRequest;

/// All objects of the running program, made and connected in the right order: the windows, the
/// delegate, the sidebar with its pages, and the list of running jobs. It lives as long as the
/// program. Interface thread only.
class Application
{
public:
    Application();
    ~Application();

    /// Names the program to Qt, so that settings and window titles are Toolvane's, and installs the
    /// texts of the user's language. Call once, before any window is made.
    static void prepare();

    /// Takes the address of the web service from the settings and shows the window, with a
    /// tool's page if the argument is its command name. Call once. The icon of the window follows a
    /// moment later, so that the first paint need not wait for it.
    void start(const QString &page = {});
    /// Brings the window to the front for a later start of the program, and opens the page if its
    /// name is a tool's. Returns false and does nothing if the window is closed already.
    bool open(const StartRequest &request);

    // Parts for `main()` and for tests; owned by this object.
    MainWindow &window() { return m_window; }
    HoverTableAppDelegate &tools() { return *m_tools; }
    JobList &jobs() { return m_jobs; }
    AppDelegate &delegate() { return m_delegate; }

private:
    /// The window is closed for good, and the program only waits for its runs to end.
    bool isQuitting() const { return !m_window.isVisible(); }
    void openPage(const QString &commandName);

    JobList m_jobs; ///< First: the pages end their jobs when they are destroyed.
    AppDelegate m_delegate;
    MainWindow m_window;
    std::unique_ptr<LoginDelegate> m_loginWindow;
    std::unique_ptr<HoverTableAppDelegate> m_tools;
    std::unique_ptr<Notifier> m_notifier;
    std::unique_ptr<TaskBar> m_taskBar;
};
