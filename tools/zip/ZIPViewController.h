#pragma once

#include "CommandRunner.h"

#include <QWidget>

#include <memory>

class JobList;

namespace Ui
{
class ZIPViewController;
}

/// Packs the contents of one folder into a zip archive.
class ZIPViewController : public QWidget
{
    Q_OBJECT

public:
    explicit ZIPViewController(JobList &jobs, QWidget *parent = nullptr);
    ~ZIPViewController() override;

    void srcSelectAction();
    void outputAction();
    void clearAction();
    QCoro::Task<> generateAction();

    /// Idle (true) or working (false).
    void setStatus(bool idle);
    /// The zip option for the chosen level.
    QString getCompressRatio() const;
    /// Whether the form may run; says in one message box what is missing first.
    bool verify();

private:
    void awakeFromNib();

    std::unique_ptr<Ui::ZIPViewController> ui;
    JobList &m_jobs;
    CommandRunner m_runner;
};
