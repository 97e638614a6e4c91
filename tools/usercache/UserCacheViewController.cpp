#include "UserCacheViewController.h"

#include "CategoryRows.h"
#include "Chooser.h"
#include "JobList.h"
#include "MiscTool.h"
#include "NamedImage.h"
#include "PageStatus.h"
#include "StoredGrant.h"
#include "ui_UserCacheViewController.h"

#include <QAccessible>
#include <QDir>

#include <utility>

using namespace Qt::StringLiterals;

// The used share of the disk in whole percent, its fraction dropped: 999 used bytes of 1000 are 99.
static int usedPercentage(std::int64_t total, std::int64_t free)
{
    // Wide enough for every size: the product would overflow 64 bits beyond 92 petabytes.
    return total > 0 ? static_cast<int>(100.0L * static_cast<long double>(total - free) / total)
                     : 0;
}

UserCacheViewController::UserCacheViewController(JobList &jobs, QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui::UserCacheViewController>()), m_jobs(jobs)
{
    ui->setupUi(this);
    connect(ui->authorizeButton, &QPushButton::clicked, this,
            &UserCacheViewController::authorizeAction);
    connect(ui->checkButton, &QPushButton::clicked, this, &UserCacheViewController::checkAction);
    connect(ui->cleanButton, &QPushButton::clicked, this, &UserCacheViewController::cleanAction);
    PageStatus::pressOnReturn(*this, *ui->checkButton);
    awakeFromNib();
}

UserCacheViewController::~UserCacheViewController()
{
    if (m_newestRun)
        m_newestRun->stop();
}

void UserCacheViewController::awakeFromNib()
{
    // A grant counts as held whenever one is stored, even if it leads to no folder any more.
    m_isAuthorized = StoredGrant::exists();
    if (m_isAuthorized)
        m_bookmarkURL = StoredGrant::resolve();
    showGrant();
    ui->titleLabel->setText(qtTrId("UserCache"));
    ui->authorizeBox->setTitle(qtTrId("Authorize"));
    ui->authorizeButton->setText(qtTrId("Authorize"));
    ui->operationBox->setTitle(qtTrId("Operation"));
    ui->progressIndicatorBox->setTitle(qtTrId("Progress"));
    PageStatus::keepSpaceWhenHidden(*ui->progressIndicatorBox);
    rows().showPaths(MiscTool::getUserHome());
    updateDiskUI();
}

void UserCacheViewController::showGrant()
{
    const auto [image, status] = m_isAuthorized
        ? std::pair(u"authorized"_s, qtTrId("UserCache.Authorized"))
        : std::pair(u"unauthorized"_s, qtTrId("UserCache.Unauthorized"));
    ui->authorizeStatusButton->setIcon(namedImage(image));
    ui->authorizeStatusButton->setAccessibleName(status);
    ui->authorizeStatusButton->setToolTip(status);
    ui->userHomeField->setText(m_bookmarkURL.toLocalFile());
}

void UserCacheViewController::authorizeAction()
{
    Chooser::chooseFolder(
        this, [this](const QString &path) { takeFolder(path); }, MiscTool::getUserHome(),
        [this] { refuseGrant(qtTrId("Authorization Failed"), qtTrId("Please authorize again")); });
}

void UserCacheViewController::takeFolder(const QString &path)
{
    const QString home = MiscTool::getUserHome();
    // The chooser hands out paths without "//" and "/./", which the user database may hold. With
    // ".." in it the cleaned path may be that of another folder.
    if (path != QDir::cleanPath(home) || QFileInfo(path) != QFileInfo(home)) {
        refuseGrant(qtTrId("Wrong Authorized Location"), qtTrId("Please authorize to ") + home);
        return;
    }
    m_bookmarkURL.clear();
    if (const auto bookmark = MiscTool::bookmarkForURL(QUrl::fromLocalFile(path))) {
        StoredGrant::store(*bookmark);
        m_bookmarkURL = MiscTool::urlForBookmark(*bookmark).value_or(QUrl());
    }
    m_isAuthorized = true;
    showGrant();
}

// Withdraws the grant until the user authorises again or the program starts anew: what is stored
// stays, and so does the image.
void UserCacheViewController::refuseGrant(const QString &message, const QString &advice)
{
    m_isAuthorized = false;
    MiscTool::showAlert(message, advice);
}

void UserCacheViewController::updateDiskUI()
{
    const std::int64_t total = MiscTool::getDiskTotalSize().value_or(0);
    const std::int64_t free = MiscTool::getDiskAvailableSize().value_or(0);
    const int percentage = usedPercentage(total, free);
    ui->totalLabel->setText(qtTrId("Total"));
    ui->freeLabel->setText(qtTrId("FreeDisk"));
    ui->diskTotalSize->setText(MiscTool::convertBytes(static_cast<std::uint64_t>(total)));
    ui->diskFreeSize->setText(MiscTool::convertBytes(static_cast<std::uint64_t>(free)));
    ui->diskLevelIndicatorBox->setTitle(QString::number(percentage) + u'%');
    ui->diskLevelIndicator->setValue(percentage);
    rows().showPlainTitles();
    ui->checkButton->setText(qtTrId("Check"));
    ui->cleanButton->setText(qtTrId("Clean"));
}

void UserCacheViewController::checkAction()
{
    start(&CacheCleaner::checkDisk);
}

void UserCacheViewController::cleanAction()
{
    start(&CacheCleaner::cleanDisk);
}

void UserCacheViewController::start(void (CacheCleaner::*work)())
{
    if (!m_isAuthorized) {
        MiscTool::showAlert(qtTrId("Not Authorized Error"), qtTrId("Please authorize first"));
        return;
    }
    setStatus(false);
    // The worker reads no widget: the boxes cannot change while it runs, so what is ticked now is
    // what it would find.
    const CacheSelection ticked = rows().ticked();
    const auto task = [work, ticked, url = m_bookmarkURL](const CacheCleaner::Report &report,
                                                          const std::stop_token &stop) {
        CacheCleaner cleaner(url, ticked, report, stop);
        (cleaner.*work)();
    };
    ui->statusLabel->clear();
    rows().clearResults(ticked);
    const JobDescription job{
        .page = objectName(), .title = qtTrId("UserCache"), .subject = MiscTool::getUserHome()};
    auto *run = new CacheRun(task, m_jobs, job, m_newestRun); // owned by the list
    m_newestRun = run;
    connect(run, &CacheRun::updated, this,
            [this, run](const CacheUpdate &update) { follow(update, run == m_newestRun); });
}

void UserCacheViewController::follow(const CacheUpdate &update, bool isNewest)
{
    if (const auto *resolved = std::get_if<GrantResolved>(&update))
        m_bookmarkURL = resolved->bookmarkURL;
    else if (const auto *measured = std::get_if<FolderMeasured>(&update))
        rows().show(*measured);
    else if (const auto *cleaned = std::get_if<FolderCleaned>(&update))
        rows().show(*cleaned);
    else if (const auto *trouble = std::get_if<CacheTrouble>(&update))
        showTrouble(*trouble);
    else if (std::holds_alternative<DiskChanged>(update))
        updateDiskUI();
    else if (isNewest) // a clean is idle once early: who pressed a button then is busy anew
        setStatus(true);
}

void UserCacheViewController::showTrouble(CacheTrouble trouble)
{
    ui->statusLabel->setText(trouble == CacheTrouble::NoThread ? qtTrId("UserCache.NoThread")
                                                               : qtTrId("UserCache.NoAnswer"));
    QAccessibleEvent alert(ui->statusLabel, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

CategoryRows UserCacheViewController::rows() const
{
    return CategoryRows({{{ui->cachesCheckBox, ui->cachesResult},
                          {ui->logsCheckBox, ui->logsResult},
                          {ui->downloadsCheckBox, ui->downloadsResult},
                          {ui->mailDownloadCheckBox, ui->mailDownloadResult},
                          {ui->trashCheckBox, ui->trashResult}}});
}

void UserCacheViewController::setStatus(bool idle)
{
    ui->authorizeButton->setEnabled(idle);
    rows().setEnabled(idle);
    ui->checkButton->setEnabled(idle);
    ui->cleanButton->setEnabled(idle);
    ui->progressIndicatorBox->setHidden(idle);
    ui->progressIndicator->setAnimating(!idle);
}
