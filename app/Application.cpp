#include "Application.h"

#include "AlertBox.h"
#include "HoverTableAppDelegate.h"
#include "LoginDelegate.h"
#include "NamedImage.h"
#include "Notifier.h"
#include "SingleInstance.h"
#include "TaskBar.h"
#include "Tool.h"
#include "WindowActivation.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLocale>
#include <QTimer>
#include <QTranslator>

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr auto windowIconDelay = 300ms;

// Qt's own texts: file choosers, buttons of message boxes. Arabic windows are mirrored; an English
// one is not, whatever the user's locale is.
void installQtsTexts(const QLocale &language)
{
    // A start that only prints a text has no windows, and so no direction.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        QGuiApplication::setLayoutDirection(language.textDirection());
    auto *texts = new QTranslator(QCoreApplication::instance());
    if (texts->load(language, u"qtbase"_s, u"_"_s,
                    QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(texts);
}

// Everything is English if we have no table for the user's language: never a window in two
// languages.
void installTexts()
{
    auto *english = new QTranslator(QCoreApplication::instance());
    if (english->load(u":/localisation/toolvane_en.qm"_s))
        QCoreApplication::installTranslator(english);
    auto *own = new QTranslator(QCoreApplication::instance());
    if (!own->load(QLocale(), u"toolvane"_s, u"_"_s, u":/localisation"_s)
        || own->filePath() == english->filePath())
        return;
    installQtsTexts(QLocale(QFileInfo(own->filePath()).baseName().section(u'_', 1)));
    QCoreApplication::installTranslator(own); // the last is used first; English has what it lacks
}

// "Zip: holiday.zip". The message of a run comes up in the same step in which the run ends.
void nameMessagesOf(const JobDescription &job)
{
    const QString path = job.output.isEmpty() ? job.subject : job.output;
    const QString file = QDir::isAbsolutePath(path) ? QFileInfo(path).fileName() : QString();
    AlertBox::setSubject(file.isEmpty() ? job.title : job.title + u": "_s + file);
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
    WindowActivation::watch();
    m_window.connectOutlets(m_delegate);
    m_delegate.loginWindow = m_loginWindow.get();
    m_loginWindow->mainWindow = &m_window;
    m_window.connectRecords(*m_loginWindow);
    m_tools = std::make_unique<HoverTableAppDelegate>(allTools(), m_jobs, m_delegate,
                                                      m_window.tableView());
    m_window.connectTools(*m_tools);
    QObject::connect(&m_jobs, &JobList::jobEnded, &m_window,
                     [](const RunningJob &job) { nameMessagesOf(job.description); });
    m_notifier = std::make_unique<Notifier>(m_jobs, m_window);
    m_taskBar = std::make_unique<TaskBar>(m_jobs);
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
    openPage(page);
    m_delegate.applicationDidFinishLaunching();
    // A window's icon is drawn in every size that a window manager may want. The window comes
    // first.
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
