#include "MainWindow.h"

#include "AboutViewController.h"
#include "AppDelegate.h"
#include "HoverTableAppDelegate.h"
#include "IconView.h"
#include "JobList.h"
#include "LoginDelegate.h"
#include "MiscTool.h"
#include "Mnemonics.h"
#include "NamedImage.h"
#include "Question.h"
#include "RecordWindow.h"
#include "ThemedLabels.h"
#include "UnplacedArchives.h"
#include "WindowActivation.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QHBoxLayout>
#include <QScreen>
#include <QSettings>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto geometryKey = "MainWindow/Geometry"_L1;
constexpr int titleIconSize = 24;
constexpr int titleMargin = 14;

// The guide is installed with the program; in a build tree there is a link to it.
void openGuide()
{
    const QString path = QDir::cleanPath(QCoreApplication::applicationDirPath()
                                         + "/../share/doc/toolvane/guide/README.md"_L1);
    if (!QFile::exists(path) || !QDesktopServices::openUrl(QUrl::fromLocalFile(path)))
        MiscTool::showAlert(qtTrId("Guide.Fail"), path);
}

// The application's icon and name. It shows the action's text, but is not a button: there is
// nothing to press.
QWidget *makeToolbarTitle(const QAction *item, QWidget *parent)
{
    auto *title = new QWidget(parent);
    auto *icon = new IconView(title);
    icon->setImageName(u"toolvane"_s);
    icon->setFixedSize(titleIconSize, titleIconSize);
    auto *name = new SectionTitle(title);
    name->setText(item->text());
    QObject::connect(item, &QAction::changed, name, [item, name] { name->setText(item->text()); });
    auto *layout = new QHBoxLayout(title);
    layout->setContentsMargins(titleMargin, 0, titleMargin, 0);
    layout->addWidget(icon);
    layout->addWidget(name);
    return title;
}

} // namespace

MainWindow::MainWindow(JobList &jobs) : ui(std::make_unique<Ui::MainWindow>()), m_jobs(jobs)
{
    ui->setupUi(this);
    ui->jobStrip->setJobs(m_jobs);
    fillToolbar();
    connect(ui->guideItem, &QAction::triggered, this, &openGuide);
    connect(ui->aboutItem, &QAction::triggered, this, &MainWindow::showAbout);
    connect(ui->quitItem, &QAction::triggered, this, &QWidget::close);
    if (!restoreGeometry(QSettings().value(geometryKey).toByteArray()))
        resize(size().boundedTo(screen()->availableSize()));
}

MainWindow::~MainWindow() = default;

void MainWindow::fillToolbar()
{
    ui->websiteItem->setIcon(namedImage(u"website"_s));
    // A tool button has no mnemonic: Qt removes the mark, and would leave "(W)".
    ui->websiteItem->setIconText(Mnemonics::withoutMark(ui->websiteItem->text()));
    ui->aboutItem->setIcon(namedImage(u"about"_s));
    ui->toolbar->addWidget(makeToolbarTitle(ui->appNameItem, ui->toolbar));
    auto *spacer = new QWidget(ui->toolbar);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    ui->toolbar->addWidget(spacer);
    ui->toolbar->addAction(ui->websiteItem);
    ui->toolbar->addAction(ui->aboutItem);
}

void MainWindow::showAbout()
{
    if (!m_about)
        m_about = new AboutViewController(ui->container);
    ui->tableView->clearSelection(); // this page is not in the list
    ui->container->setContentView(m_about);
}

void MainWindow::connectOutlets(AppDelegate &delegate)
{
    delegate.window = this;
    delegate.toolbar = ui->toolbar;
    delegate.appNameItem = ui->appNameItem;
    delegate.container = ui->container;
    connect(ui->websiteItem, &QAction::triggered, &delegate, &AppDelegate::goWebsite);
}

void MainWindow::connectTools(HoverTableAppDelegate &tools)
{
    connect(ui->jobStrip, &JobStrip::pageWanted, &tools, &HoverTableAppDelegate::showPage);
    for (int row = 0; row < tools.numberOfRowsInTableView(); ++row) {
        const auto [icon, name] = tools.objectValueForTableColumn(row);
        QAction *item = ui->toolsMenu->addAction(name);
        item->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + row)));
        connect(item, &QAction::triggered, &tools, [&tools, row] { tools.selectTool(row); });
    }
}

void MainWindow::connectRecords(LoginDelegate &login)
{
    connect(ui->loginItem, &QAction::triggered, &login, [&login] { MiscTool::showWindow(&login); });
    // Open record windows belong to the user who was logged in before.
    connect(&login, &LoginDelegate::loggedIn, this, [this] { RecordWindow::closeOf(*this); });
    const auto opens = [this](const QAction *item, RecordWindow::Page page) {
        connect(item, &QAction::triggered, this, [this, page] { RecordWindow::open(page, *this); });
    };
    opens(ui->userGroupsItem, RecordWindow::Page::UserGroups);
    opens(ui->usersItem, RecordWindow::Page::Users);
    opens(ui->stockItem, RecordWindow::Page::Stock);
}

HoverTableView &MainWindow::tableView() const
{
    return *ui->tableView;
}

void MainWindow::comeToFront(const QString &activationToken)
{
    WindowActivation::bringToFront(*this, activationToken);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_jobs.isEmpty() || !UnplacedArchives::newest().isEmpty()) {
        event->ignore();
        askBeforeClosing();
        return;
    }
    QSettings().setValue(geometryKey, saveGeometry());
    event->accept();
}

void MainWindow::askBeforeClosing()
{
    const bool runs = !m_jobs.isEmpty();
    const QMessageBox *question =
        ask(this,
            {.name = "quitQuestion",
             .text = qtTrId(runs ? "Quit.Question" : "Quit.Unplaced"),
             .consequence = qtTrId(runs ? "Quit.Consequence" : "Quit.Kept"),
             .agree = qtTrId("Quit.Quit"),
             .decline = qtTrId("Quit.KeepWorking")},
            [this] { quit(); });
    if (question && runs) // after the last run there is nothing left to decide
        connect(&m_jobs, &JobList::allEnded, question, &QWidget::close);
}

void MainWindow::quit()
{
    if (!m_jobs.isEmpty())
        return quitWithoutFinishing();
    QSettings().setValue(geometryKey, saveGeometry());
    hide();
    QCoreApplication::quit(); // even while a message is open
}

void MainWindow::quitWithoutFinishing()
{
    QSettings().setValue(geometryKey, saveGeometry());
    connect(&m_jobs, &JobList::allEnded, qApp, &QCoreApplication::quit);
    hide();
    const auto children = findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (child->isWindow())
            child->close(); // a program that quits takes no more input
    }
    Q_EMIT abandonRuns();
}
