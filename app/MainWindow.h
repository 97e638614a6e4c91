#pragma once

#include <QMainWindow>

#include <memory>

namespace Ui
{
class MainWindow;
}

class AboutViewController;
class AppDelegate;
class HoverTableAppDelegate;
class HoverTableView;
class JobList;
class LoginDelegate;

/// The one window: toolbar, menu bar, sidebar and page area. Remembers its place and size, and asks
/// before it closes while something runs.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(JobList &jobs);
    ~MainWindow() override;

    /// Fills the delegate's outlets with this window and its parts.
    void connectOutlets(AppDelegate &delegate);
    /// Lists the tools in the menu, each with Ctrl and its number, and lets what runs lead to them.
    void connectTools(HoverTableAppDelegate &tools);

    /// Lets the Records menu open the login window and the record pages.
    void connectRecords(LoginDelegate &login);

    HoverTableView &tableView() const;

    /// Shows the window above others. Where the desktop wants to see a token before it allows that,
    /// this is the one it gave.
    void comeToFront(const QString &activationToken = {});

    /// Ends the program without a question, as at the end of the user's session: what runs is
    /// ended first, and waited for.
    void quit();

Q_SIGNALS:
    /// The user wants to quit although something runs: the pages are to go, and their runs with
    /// them.
    void abandonRuns();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void fillToolbar();
    void showAbout();
    void askBeforeClosing();
    void quitWithoutFinishing();

    std::unique_ptr<Ui::MainWindow> ui;
    JobList &m_jobs;
    AboutViewController *m_about = nullptr; ///< Made when it is asked for the first time.
};
