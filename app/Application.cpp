#include "Application.h"

#include "DB.h"
#include "HoverTableAppDelegate.h"
#include "Language.h"
#include "LoginDelegate.h"
#include "NamedImage.h"
#include "Notifier.h"
#include "StartRequest.h"
#include "Tool.h"

#include <QApplication>
#include <QTimer>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto windowIconDelay = 300ms;

} // namespace

void Application::prepare()
{
    QCoreApplication::setOrganizationName(u"Toolvane"_s);
    QCoreApplication::setApplicationName(u"Toolvane"_s);
    QCoreApplication::setApplicationVersion(QLatin1String(TOOLVANE_VERSION));
    QGuiApplication::setApplicationDisplayName(u"Toolvane"_s);
    QGuiApplication::setDesktopFileName(u"toolvane"_s);
    Language::install();
}

Application::Application()
    : m_window(m_jobs), m_loginWindow(std::make_unique<LoginDelegate>(&m_window))
{
    m_window.connectOutlets(m_delegate);
    m_delegate.loginWindow = m_loginWindow.get();
    m_loginWindow->mainWindow = &m_window;
    m_window.connectRecords(*m_loginWindow);
    m_tools = std::make_unique<HoverTableAppDelegate>(allTools(), m_jobs, m_delegate,
                                                      m_window.tableView());
    m_window.connectTools(*m_tools);
    m_notifier = std::make_unique<Notifier>(m_jobs, m_window);
    QObject::connect(m_notifier.get(), &Notifier::pageWanted, &m_window,
                     [this](const QString &page, const QString &activationToken) {
                         if (isQuitting()) // a notification can stay longer than its page
                             return;
                         m_tools->showPage(page);
                         m_window.comeToFront(activationToken);
                     });
    QObject::connect(&m_window, &MainWindow::abandonRuns, m_tools.get(),
                     &HoverTableAppDelegate::closePages);
}

Application::~Application() = default;

void Application::start(const QString &page)
{
    DB::openConfiguredWebService();
    openPage(page);
    m_delegate.applicationDidFinishLaunching();
    // A window's icon is drawn in every size that a window manager may ask for, which is work that
    // nobody should wait for: the window comes first.
    QTimer::singleShot(windowIconDelay, qApp,
                       [] { QGuiApplication::setWindowIcon(namedImage(u"toolvane"_s)); });
}

bool Application::open(const StartRequest &request)
{
    if (isQuitting())
        return false;
    openPage(request.page);
    m_window.comeToFront(request.activationToken);
    return true;
}

void Application::openPage(const QString &commandName)
{
    if (const auto row = rowOfTool(commandName))
        m_tools->selectTool(*row);
}
