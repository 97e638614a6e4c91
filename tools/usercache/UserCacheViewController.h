#pragma once

#include "CacheRun.h"

#include <QPointer>
#include <QUrl>
#include <QWidget>

#include <memory>

class CategoryRows;
class JobList;

namespace Ui
{
class UserCacheViewController;
}

/// Shows how full the start-up disk is, measures the clutter in the user's home folder and deletes
/// what the user ticks, once the user has granted access to that folder.
class UserCacheViewController : public QWidget
{
    Q_OBJECT

public:
    /// The list outlives the page: it keeps what is left of a run when the page goes.
    explicit UserCacheViewController(JobList &jobs, QWidget *parent = nullptr);
    ~UserCacheViewController() override;

    /// Lets the user choose the home folder, which is the grant. Another folder, or none, withdraws
    /// the grant until the program starts anew.
    void authorizeAction();
    void checkAction(); ///< Measures the ticked folders.
    void cleanAction(); ///< Deletes the ticked folders, without a question.

    /// Refreshes the disk's figures and puts back the plain texts of labels, check boxes, buttons.
    void updateDiskUI();
    /// Idle (true) or working (false).
    void setStatus(bool idle);

private:
    void awakeFromNib();

    void takeFolder(const QString &path);
    void refuseGrant(const QString &message, const QString &advice);
    void showGrant();

    void start(void (CacheCleaner::*work)());
    void follow(const CacheUpdate &update, bool isNewest);
    void showTrouble(CacheTrouble trouble);
    CategoryRows rows() const;

    std::unique_ptr<Ui::UserCacheViewController> ui;
    JobList &m_jobs;
    bool m_isAuthorized = false;
    QUrl m_bookmarkURL; ///< Empty while the stored grant leads to no folder.
    QPointer<CacheRun> m_newestRun;
};
