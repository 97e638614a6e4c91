#include "UserCacheViewController.h"

#include "Chooser.h"
#include "JobList.h"
#include "MiscTool.h"
#include "NamedImage.h"
#include "PageStatus.h"
#include "StoredGrant.h"
#include "ui_UserCacheViewController.h"

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
    if (path != home) {
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
    for (CacheCategoryIndex category = 0; category < cacheCategories.size(); ++category)
        checkBoxes().at(category)->setText(qtTrId(cacheCategories.at(category).titleKey));
    ui->checkButton->setText(qtTrId("Check"));
    ui->cleanButton->setText(qtTrId("Clean"));
}

void UserCacheViewController::checkAction()
{
    start(CacheRun::Work::Check);
}

void UserCacheViewController::cleanAction()
{
    start(CacheRun::Work::Clean);
}

void UserCacheViewController::start(CacheRun::Work work)
{
    if (!m_isAuthorized) {
        MiscTool::showAlert(qtTrId("Not Authorized Error"), qtTrId("Please authorize first"));
        return;
    }
    setStatus(false);
    // The worker reads no widget: the boxes cannot change while it runs, so what is ticked now is
    // what it would find.
    const CacheRun::Request request{
        .work = work, .bookmarkURL = m_bookmarkURL, .ticked = tickedCategories()};
    const JobDescription job{
        .page = objectName(), .title = qtTrId("UserCache"), .subject = MiscTool::getUserHome()};
    auto *run = new CacheRun(request, m_jobs, job, m_turn); // owned by the list
    m_newestRun = run;
    connect(run, &CacheRun::updated, this,
            [this, run](const CacheUpdate &update) { follow(update, run == m_newestRun); });
}

CacheSelection UserCacheViewController::tickedCategories() const
{
    CacheSelection ticked;
    for (CacheCategoryIndex category = 0; category < ticked.size(); ++category)
        ticked.set(category, checkBoxes().at(category)->checkState() == Qt::Checked);
    return ticked;
}

void UserCacheViewController::follow(const CacheUpdate &update, bool isNewest)
{
    if (const auto *resolved = std::get_if<GrantResolved>(&update))
        m_bookmarkURL = resolved->bookmarkURL;
    else if (const auto *measured = std::get_if<FolderMeasured>(&update))
        showSize(*measured);
    else if (std::holds_alternative<DiskChanged>(update))
        updateDiskUI();
    else if (isNewest) // a clean is idle once early: who pressed a button then is busy anew
        setStatus(true);
}

void UserCacheViewController::showSize(const FolderMeasured &measured)
{
    const QString title = qtTrId(cacheCategories.at(measured.category).titleKey);
    const auto bytes = static_cast<std::uint64_t>(measured.bytes);
    const QString size = bytes != 0 ? MiscTool::convertBytes(bytes) : QString();
    checkBoxes().at(measured.category)->setText(title + size);
}

std::array<QCheckBox *, cacheCategories.size()> UserCacheViewController::checkBoxes() const
{
    return {ui->cachesCheckBox, ui->logsCheckBox, ui->downloadsCheckBox, ui->mailDownloadCheckBox,
            ui->trashCheckBox};
}

void UserCacheViewController::setStatus(bool idle)
{
    ui->authorizeButton->setEnabled(idle);
    ui->cachesCheckBox->setEnabled(idle);
    ui->downloadsCheckBox->setEnabled(idle);
    ui->trashCheckBox->setEnabled(idle);
    ui->logsCheckBox->setEnabled(idle);
    ui->trashCheckBox->setEnabled(idle);
    ui->mailDownloadCheckBox->setEnabled(idle);
    ui->checkButton->setEnabled(idle);
    ui->cleanButton->setEnabled(idle);
    ui->progressIndicatorBox->setHidden(idle);
    ui->progressIndicator->setAnimating(!idle);
}
