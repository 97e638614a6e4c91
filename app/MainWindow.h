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
/// before it closes while something runs. Interface thread only.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Restores place and size of the last time. The list must outlive the window.
    explicit MainWindow(JobList &jobs);
    ~MainWindow() override;

    /// Fills the delegate's outlets with this window and its parts.
    void connectOutlets(AppDelegate &delegate);
    /// Lists the tools in the menu, with Ctrl+1 and so on as shortcuts, and lets the rows of the
    /// job strip lead to their pages. Call once.
    void connectTools(HoverTableAppDelegate &tools);

    /// Lets the Records menu open the login window and the record pages. A login closes the record
    /// windows that are open: they belong to the user before.
    void connectRecords(LoginDelegate &login);

    HoverTableView &tableView() const; ///< The sidebar's list.

    /// Shows the window above others. A Wayland compositor allows that only with an activation
    /// token that it gave to another program before.
    void comeToFront(const QString &activationToken = {});

    /// Ends the program without a question, as at the end of the user's session. Running jobs are
    /// stopped, and the program ends with the last of them.
    void quit();

Q_SIGNALS:
    /// The user wants to quit although something runs: the pages are to be destroyed, which stops
    /// their runs.
    void abandonRuns();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void fillToolbar();
    void showAbout();
    /// Opens one message box with the question, not a second one. It closes with the last job.
    void askBeforeClosing();
    void quitWithoutFinishing();

    std::unique_ptr<Ui::MainWindow> ui;
    JobList &m_jobs;
    AboutViewController *m_about = nullptr; ///< Made when it is first shown.
};
