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
    /// The list outlives the page: it keeps what is left of a run when the page goes.
    explicit ZIPViewController(JobList &jobs, QWidget *parent = nullptr);
    ~ZIPViewController() override;

    void srcSelectAction();
    void outputAction(); ///< Chooses the file to write.
    void clearAction(); ///< Back to empty fields and the level "Faster".
    /// Packs as the form says, in the application's own folder, and then moves the archive to its
    /// place. Ends after the message, of which there is none if the run was stopped. If zip cannot
    /// be started there is no message either, and the page stays busy. A file at the output path is
    /// never replaced; an archive that cannot be placed is kept, and the page offers another place.
    QCoro::Task<> generateAction();

    /// Idle (true) or working (false).
    void setStatus(bool idle);
    /// The zip option for the chosen level.
    QString getCompressRatio() const;
    /// Whether the form may run; says in one message box what is missing first.
    bool verify();

protected:
    /// Offers an archive that an earlier start of the program left without a place.
    void showEvent(QShowEvent *event) override;

private:
    void awakeFromNib();
    QCoro::Task<> placeKept(QString archive, QString output);
    void showEnd(JobOutcome outcome, int error, const QString &kept, const QString &output);
    void sayCouldNotStart();
    void offerPlace(const QString &archive, const QString &text);
    void offerNewest();
    void choosePlace();
    void askToDiscard();
    void discard();

    std::unique_ptr<Ui::ZIPViewController> ui;
    JobList &m_jobs;
    CommandRunner m_runner;
    QString m_unplaced; ///< The archive that the page offers another place for.
};
