#pragma once

#include "CommandRunner.h"

#include <QWidget>

#include <memory>

class JobList;

namespace Ui
{
class SynthesisViewController;
}

/// Reads a text aloud or saves the spoken text as a sound file.
class SynthesisViewController : public QWidget
{
    Q_OBJECT

public:
    /// The list outlives the page: it keeps what is left of a run when the page goes.
    explicit SynthesisViewController(JobList &jobs, QWidget *parent = nullptr);
    ~SynthesisViewController() override;

    void testAction(); ///< Speaks a fixed sentence with the chosen voice and rate.
    void readAction(); ///< Speaks what the field holds, unless it is empty.
    void resetAction(); ///< Back to the usual rate; the voice stays.
    void saveAction(); ///< Saves what the field holds, even nothing.

    /// Speaks the text aloud. Says nothing about how it went.
    QCoro::Task<> read(QString text);
    /// Idle (true) or working (false).
    void setStatus(bool idle);
    /// Whether there is a text to read; says so in a message box when there is none.
    bool verify();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void awakeFromNib();
    void connectButtons();
    void sayWhatWillFail();

    QCoro::Task<> save(QString file); ///< A file at the path is replaced.
    Command speak(const QString &text) const;
    Job beginJob(const QString &text, const QString &output = {});

    std::unique_ptr<Ui::SynthesisViewController> ui;
    JobList &m_jobs;
    CommandRunner m_runner;
    bool m_canSpeak = true;
};
