#pragma once

#include "CommandRunner.h"
#include "FileManager.h"

#include <QWidget>

#include <memory>

class JobList;

namespace Ui
{
class UNZIPViewController;
}

/// Extracts one zip archive into a new folder that is named after it.
class UNZIPViewController : public QWidget
{
    Q_OBJECT

public:
    /// The list outlives the page: it keeps what is left of a run when the page goes.
    explicit UNZIPViewController(JobList &jobs, QWidget *parent = nullptr);
    ~UNZIPViewController() override;

    void srcSelectAction();
    void outputSelectAction();
    /// Shows the output folder, not the new folder in it, in the file manager. Never disabled.
    void openAction();
    void clearAction(); ///< Empties both fields.
    /// Unpacks and ends after the message, of which there is none if the run was stopped. If unzip
    /// cannot be started there is no message either, and the page stays busy. After a failure the
    /// new folder stays, with what is in it.
    QCoro::Task<> generateAction();

    /// Idle (true) or working (false). The two fields stay as they are.
    void setStatus(bool idle);
    /// Whether the form may run; says in one message box what is wrong first. A file name that is
    /// too short to lose its extension is refused without a word.
    bool verify();

private:
    void awakeFromNib();
    void connectButtons();

    /// None for a file name that is too short.
    std::optional<QString> destination() const;

    std::unique_ptr<Ui::UNZIPViewController> ui;
    JobList &m_jobs;
    CommandRunner m_runner;
    FileManager m_fileManager;
};
