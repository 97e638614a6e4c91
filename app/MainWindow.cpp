#include "MainWindow.h"

#include "AboutViewController.h"
#include "AppDelegate.h"
#include "HoverTableAppDelegate.h"
#include "JobList.h"
#include "LoginDelegate.h"
#include "MiscTool.h"
#include "Mnemonics.h"
#include "NamedImage.h"
#include "RecordWindow.h"
#include "ToolbarTitle.h"
#include "ui_MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace
{

constexpr auto geometryKey = "MainWindow/Geometry"_L1;

} // namespace

MainWindow::MainWindow(JobList &jobs) : ui(std::make_unique<Ui::MainWindow>()), m_jobs(jobs)
{
    ui->setupUi(this);
    ui->jobStrip->setJobs(m_jobs);
    fillToolbar();
    connect(ui->aboutItem, &QAction::triggered, this, &MainWindow::showAbout);
    connect(ui->quitItem, &QAction::triggered, this, &QWidget::close);
    if (!restoreGeometry(QSettings().value(geometryKey).toByteArray()))
        resize(size().boundedTo(screen()->availableSize()));
}

MainWindow::~MainWindow() = default;

void MainWindow::fillToolbar()
{
    ui->websiteItem->setIcon(namedImage(u"website"_s));
    // A tool button has no letter: Qt takes the mark away, and leaves "(W)".
    ui->websiteItem->setIconText(Mnemonics::withoutMark(ui->websiteItem->text()));
    ui->aboutItem->setIcon(namedImage(u"about"_s));
    ui->toolbar->addWidget(new ToolbarTitle(ui->appNameItem, ui->toolbar));
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
    ui->tableView->clearSelection(); // the page that is shown is none of the list's
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
    // What is open belongs to whoever was logged in before.
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
    // Qt takes the token from there, and from the environment, with the request that follows.
    if (!activationToken.isEmpty() && QGuiApplication::platformName().startsWith("wayland"_L1))
        qputenv("XDG_ACTIVATION_TOKEN", activationToken.toUtf8());
    setWindowState(windowState() & ~Qt::WindowMinimized);
    MiscTool::showWindow(this);
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_jobs.isEmpty()) {
        event->ignore();
        askBeforeClosing();
        return;
    }
    QSettings().setValue(geometryKey, saveGeometry());
    event->accept();
}

void MainWindow::askBeforeClosing()
{
    if (findChild<QMessageBox *>(u"quitQuestion"_s))
        return;
    auto *question = new QMessageBox(QMessageBox::Question, windowTitle(), qtTrId("Quit.Question"),
                                     QMessageBox::NoButton, this);
    question->setObjectName(u"quitQuestion"_s);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setInformativeText(qtTrId("Quit.Consequence"));
    QPushButton *quit = question->addButton(qtTrId("Quit.Quit"), QMessageBox::DestructiveRole);
    QPushButton *stay = question->addButton(qtTrId("Quit.KeepWorking"), QMessageBox::RejectRole);
    question->setDefaultButton(stay);
    question->setEscapeButton(stay);
    connect(quit, &QPushButton::clicked, this, &MainWindow::quitWithoutFinishing);
    // Once the last run has ended there is nothing left to ask.
    connect(&m_jobs, &JobList::allEnded, question, &QWidget::close);
    Mnemonics::keepUnique(question);
    question->open();
}

void MainWindow::quit()
{
    if (!m_jobs.isEmpty())
        return quitWithoutFinishing();
    QSettings().setValue(geometryKey, saveGeometry());
    hide();
    QCoreApplication::quit(); // a message that is shown is no reason to stay
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
