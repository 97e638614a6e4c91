#include "Application.h"

#include "HoverTableAppDelegate.h"
#include "LoginDelegate.h"
#include "NamedImage.h"
#include "Tool.h"

#include <QApplication>
#include <QLocale>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace
{

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
    QGuiApplication::setWindowIcon(namedImage(u"toolvane"_s));
    installTexts();
}

Application::Application() : m_window(m_jobs), m_loginWindow(std::make_unique<LoginDelegate>())
{
    m_window.connectOutlets(m_delegate);
    m_delegate.loginWindow = m_loginWindow.get();
    m_tools = std::make_unique<HoverTableAppDelegate>(allTools(), m_jobs, m_delegate,
                                                      m_window.tableView());
    m_window.connectTools(*m_tools);
    QObject::connect(&m_window, &MainWindow::abandonRuns, m_tools.get(),
                     &HoverTableAppDelegate::closePages);
}

Application::~Application() = default;
