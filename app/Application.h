#pragma once

#include "AppDelegate.h"
#include "JobList.h"
#include "MainWindow.h"

#include <memory>

class HoverTableAppDelegate;
class LoginDelegate;
class Notifier;
struct StartRequest;

/// Everything that the main interface description stands for, made and connected in the right
/// order: the windows, the delegate, the sidebar with its pages, and the list of what runs.
class Application
{
public:
    Application();
    ~Application();

    /// Names the program to Qt, so that settings and window titles are Toolvane's, and installs the
    /// texts of the user's language. Call once, before any window is made.
    static void prepare();

    /// Shows the window, with the page of the tool of this command name where there is one.
    void start(const QString &page = {});
    /// Does what a later start of the program asks for: the window comes to the front. A name of no
    /// tool opens no page. False, and nothing is done, when the window is closed already.
    bool open(const StartRequest &request);

    MainWindow &window() { return m_window; }
    HoverTableAppDelegate &tools() { return *m_tools; }
    JobList &jobs() { return m_jobs; }
    AppDelegate &delegate() { return m_delegate; }

private:
    /// The window is closed for good, while runs come to their end.
    bool isQuitting() const { return !m_window.isVisible(); }
    void openPage(const QString &commandName);

    JobList m_jobs;
    AppDelegate m_delegate;
    MainWindow m_window;
    std::unique_ptr<LoginDelegate> m_loginWindow;
    std::unique_ptr<HoverTableAppDelegate> m_tools;
    std::unique_ptr<Notifier> m_notifier;
};
