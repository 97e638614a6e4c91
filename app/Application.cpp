#include "Application.h"

#include "ConfiguredWebService.h"
#include "HoverTableAppDelegate.h"
#include "LoginDelegate.h"
#include "NamedImage.h"
#include "Tool.h"

#include <QApplication>
#include <QLocale>
#include <QTimer>
#include <QTranslator>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto windowIconDelay = 300ms;

void installTexts()
{
    auto *english = new QTranslator(qApp);
    if (english->load(u":/localisation/toolvane_en.qm"_s))
        QCoreApplication::installTranslator(english);
    auto *own = new QTranslator(qApp); // asked first; English answers for what it lacks
    if (own->load(QLocale(), u"toolvane"_s, u"_"_s, u":/localisation"_s))
        QCoreApplication::installTranslator(own);
}

} // namespace

void Application::prepare()
{
    QCoreApplication::setOrganizationName(u"Toolvane"_s);
    QCoreApplication::setApplicationName(u"Toolvane"_s);
    QCoreApplication::setApplicationVersion(QLatin1String(TOOLVANE_VERSION));
    QGuiApplication::setApplicationDisplayName(u"Toolvane"_s);
    QGuiApplication::setDesktopFileName(u"toolvane"_s);
    installTexts();
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
    QObject::connect(&m_window, &MainWindow::abandonRuns, m_tools.get(),
                     &HoverTableAppDelegate::closePages);
}

Application::~Application() = default;

void Application::start()
{
    openConfiguredWebService();
    m_delegate.applicationDidFinishLaunching();
    // A window's icon is drawn in every size that a window manager may ask for, which is work that
    // nobody should wait for: the window comes first.
    QTimer::singleShot(windowIconDelay, qApp,
                       [] { QGuiApplication::setWindowIcon(namedImage(u"toolvane"_s)); });
}
