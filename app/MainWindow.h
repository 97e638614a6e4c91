#pragma once

#include <QMainWindow>

#include <memory>

namespace Ui
{
class MainWindow;
}

class AppDelegate;
class HoverTableAppDelegate;
class HoverTableView;
class JobList;
class QMessageBox;

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
    /// Lists the tools in the menu, each with Ctrl and its number.
    void connectTools(HoverTableAppDelegate &tools);

    HoverTableView &tableView() const;

Q_SIGNALS:
    /// The user wants to quit although something runs: the pages are to go, and their runs with
    /// them.
    void abandonRuns();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    void fillToolbar();
    void askBeforeClosing();
    void quitWithoutFinishing();

    std::unique_ptr<Ui::MainWindow> ui;
    JobList &m_jobs;
};
