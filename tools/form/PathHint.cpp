#include "PathHint.h"

#include "PathField.h"

#include <QEvent>
#include <QThreadPool>
#include <QtConcurrentRun>

#include <chrono>

using namespace std::chrono_literals;

namespace
{

constexpr auto typingDelay = 200ms;
constexpr int maxThreads = 4;

// A file server that does not answer may hold a thread for ever: neither other work nor the end of
// the program waits for these, so the pool is never destroyed.
QThreadPool &waitingRoom()
{
    static QThreadPool *const pool = [] {
        auto *made = new QThreadPool;
        made->setMaxThreadCount(maxThreads);
        return made;
    }();
    return *pool;
}

} // namespace

PathHint::PathHint(QWidget *parent) : HintLine(parent)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(typingDelay);
    connect(&m_delay, &QTimer::timeout, this, &PathHint::ask);
    connect(&m_facts, &QFutureWatcherBase::finished, this, [this] {
        if (m_asked == question())
            say(pathAdvice(m_asked, m_facts.result()), *m_field);
    });
    connect(&m_size, &QFutureWatcherBase::finished, this, [this] {
        if (m_size.isCanceled()) // forgotten
            return;
        m_needed = m_size.result();
        ask();
    });
}

PathHint::~PathHint()
{
    m_measuring.request_stop();
}

void PathHint::watch(PathField &field, PathUse use)
{
    m_field = &field;
    m_use = use;
    connect(m_field, &QLineEdit::textChanged, this, &PathHint::askSoon);
}

void PathHint::setSource(const QLineEdit &source, std::function<QString()> made)
{
    m_source = &source;
    m_made = std::move(made);
    connect(m_source, &QLineEdit::textChanged, this, [this] {
        forgetSize();
        askSoon();
    });
}

PathQuestion PathHint::question() const
{
    return {.use = m_use,
            .path = withHomeFolder(m_field->text()),
            .made = m_made ? withHomeFolder(m_made()) : QString(),
            .needed = m_needed};
}

void PathHint::askSoon()
{
    say({}, *m_field); // it was about another text
    m_delay.start();
}

void PathHint::ask()
{
    m_asked = question();
    if (m_asked.path.isEmpty() && m_asked.made.isEmpty())
        return say({}, *m_field);
    m_facts.setFuture(
        QtConcurrent::run(&waitingRoom(), [asked = m_asked] { return pathFacts(asked); }));
    if (m_source && !m_source->text().isEmpty() && !m_needed && !m_size.isRunning())
        measure();
}

void PathHint::measure()
{
    m_measuring = std::stop_source();
    m_size.setFuture(QtConcurrent::run(
        &waitingRoom(), [path = withHomeFolder(m_source->text()), stop = m_measuring.get_token()] {
            return sourceSize(path, stop);
        }));
}

void PathHint::forgetSize()
{
    m_measuring.request_stop();
    m_size.setFuture({}); // whatever it still measures
    m_needed.reset();
}

// Another program may have made or removed something meanwhile.
bool PathHint::event(QEvent *event)
{
    if (event->type() == QEvent::WindowActivate && m_field && !m_delay.isActive())
        ask();
    return HintLine::event(event);
}
