#include "JobStrip.h"

#include "NamedImage.h"
#include "PlainToolTip.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr std::chrono::milliseconds showDelay = 300ms;
constexpr std::size_t maxVisibleRows = 3;
constexpr int sideMargin = 8;
constexpr int stopSize = 32;
constexpr int stopIconSize = 18;
constexpr int textMargin = 10;
constexpr int topMargin = 5;
constexpr int gap = 8;
constexpr int barHeight = 6;

// Assistive programs get a tenth at a time, the eye each percent.
class JobBar : public QProgressBar
{
public:
    JobBar(const QString &title, QWidget *parent) : QProgressBar(parent)
    {
        setAccessibleName(title);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setTextVisible(false);
        setFixedHeight(barHeight);
        setRange(0, 100);
        hide();
    }

    void setPercent(std::optional<int> percent)
    {
        setVisible(percent.has_value());
        if (std::exchange(m_percent, percent.value_or(0)) != m_percent)
            update();
        setValue(m_percent / 10 * 10);
    }

protected:
    void initStyleOption(QStyleOptionProgressBar *option) const override
    {
        QProgressBar::initStyleOption(option);
        option->progress = m_percent;
    }

private:
    int m_percent = 0;
};

// Names the job: its title and how long it has run, and below them what it is done to, shortened in
// the middle, or how far it is as soon as that is known, with a bar: a page has one run at a time,
// so that the title is enough to tell jobs apart. What it says can change every second without any
// layout being done again.
class JobRowButton : public QPushButton
{
public:
    JobRowButton(const QString &title, const QString &subject, QWidget *parent)
        : QPushButton(parent), m_title(title), m_subject(subject), m_bar(new JobBar(title, this))
    {
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(textMargin, 0, textMargin, topMargin);
        layout->addWidget(m_bar, 0, Qt::AlignBottom);
        setFlat(true);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
        setAccessibleName(subject.isEmpty() ? title : title + u": "_s + subject);
        const QString tip = qtTrId("Jobs.Show.Tip");
        setToolTip(plainToolTip(subject.isEmpty() ? tip : subject + u'\n' + tip));
    }

    void setElapsed(const QString &elapsed)
    {
        if (std::exchange(m_elapsed, elapsed) != elapsed)
            update();
    }

    void setProgress(const JobProgress &progress)
    {
        m_bar->setPercent(progress.percent());
        if (std::exchange(m_progress, progress.text()) != m_progress)
            update();
    }

    QSize minimumSizeHint() const override
    {
        return {0, 2 * (fontMetrics().height() + topMargin) + barHeight};
    }
    QSize sizeHint() const override;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_title;
    QString m_subject;
    QString m_elapsed;
    QString m_progress;
    JobBar *m_bar;
};

QSize JobRowButton::sizeHint() const
{
    const int widest = std::max(fontMetrics().horizontalAdvance(m_title + m_elapsed) + gap,
                                fontMetrics().horizontalAdvance(m_subject));
    return {widest + 2 * textMargin, minimumSizeHint().height()};
}

// Set when the focus comes, not every second: a screen reader would read out the seconds.
void JobRowButton::focusInEvent(QFocusEvent *event)
{
    QStringList parts{m_elapsed, m_progress, qtTrId("Jobs.Show.Tip")};
    parts.removeAll(QString());
    setAccessibleDescription(parts.join(u". "_s));
    QPushButton::focusInEvent(event);
}

void JobRowButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    const QRect inner = rect().adjusted(textMargin, topMargin, -textMargin, -topMargin - barHeight);
    QRect line = inner;
    line.setHeight(inner.height() / 2);
    const auto draw = [&](const QString &text, Qt::Alignment side, QPalette::ColorRole role) {
        const auto flags = QStyle::visualAlignment(option.direction, side | Qt::AlignVCenter);
        // A path reads from left to right in a window that does not.
        const int direction =
            text.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
        painter.drawItemText(line, static_cast<int>(flags) | Qt::TextSingleLine | direction,
                             option.palette, true, text, role);
    };
    draw(m_elapsed, Qt::AlignRight, QPalette::PlaceholderText);
    const int room = inner.width() - fontMetrics().horizontalAdvance(m_elapsed) - gap;
    draw(fontMetrics().elidedText(m_title, Qt::ElideRight, room), Qt::AlignLeft,
         QPalette::WindowText);

    line.moveBottom(inner.bottom());
    const QString &below = m_progress.isEmpty() ? m_subject : m_progress;
    draw(fontMetrics().elidedText(below, Qt::ElideMiddle, inner.width()), Qt::AlignLeft,
         QPalette::PlaceholderText);
}

} // namespace

// One running job: a button that names the job and leads to its page, and a button that stops it.
// It shows the job as it was at first, apart from how far it is.
class JobRow : public QWidget
{
public:
    JobRow(const RunningJob &job, JobList &jobs, JobStrip &strip);

    JobId id() const { return m_id; }
    void showProgress(const JobProgress &progress) { m_button->setProgress(progress); }
    void showElapsed() { m_button->setElapsed(elapsedText(m_started.elapsed())); }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QPushButton *makeStopButton(const QString &title, JobList &jobs);

    JobId m_id;
    QElapsedTimer m_started;
    JobRowButton *m_button;
};

JobRow::JobRow(const RunningJob &job, JobList &jobs, JobStrip &strip)
    : m_id(job.id), m_started(job.started),
      m_button(new JobRowButton(job.description.title, job.description.subject, this))
{
    connect(m_button, &QPushButton::clicked, &strip,
            [&strip, page = job.description.page] { Q_EMIT strip.pageWanted(page); });
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(sideMargin, 0, sideMargin, 0);
    layout->setSpacing(0);
    layout->addWidget(m_button, 1);
    layout->addWidget(makeStopButton(job.description.title, jobs));
    showElapsed();
    showProgress(job.progress);
}

QPushButton *JobRow::makeStopButton(const QString &title, JobList &jobs)
{
    auto *button = new QPushButton(this);
    button->setFlat(true);
    button->setIcon(namedImage(u"stop"_s));
    button->setIconSize({stopIconSize, stopIconSize});
    button->setFixedSize(stopSize, stopSize);
    button->setToolTip(qtTrId("Jobs.Stop"));
    button->setAccessibleName(qtTrId("Jobs.Stop.Name").arg(title));
    connect(button, &QPushButton::clicked, &jobs, [&jobs, button, id = m_id] {
        button->setEnabled(false); // the run may take some seconds to end
        jobs.stop(id);
    });
    return button;
}

// Qt gives Return to a dialog's default button only.
void JobRow::keyPressEvent(QKeyEvent *event)
{
    auto *button = qobject_cast<QPushButton *>(focusWidget());
    if (button && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        button->click();
    else
        QWidget::keyPressEvent(event);
}

void JobRow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(0, 0, width(), 1, palette().color(QPalette::Midlight));
}

JobStrip::JobStrip(QWidget *parent) : QScrollArea(parent)
{
    setFrameShape(NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setWidgetResizable(true);
    setWidget(new QWidget);
    auto *layout = new QVBoxLayout(widget());
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_showTimer.setSingleShot(true);
    connect(&m_showTimer, &QTimer::timeout, this, &JobStrip::updateRows);
    m_elapsedTimer.setInterval(1s);
    connect(&m_elapsedTimer, &QTimer::timeout, this, &JobStrip::showElapsed);
}

void JobStrip::setJobs(JobList &jobs)
{
    m_jobs = &jobs;
    connect(&jobs, &JobList::changed, this, &JobStrip::updateRows);
    connect(&jobs, &JobList::progressed, this, &JobStrip::showProgress);
    updateRows();
}

QSize JobStrip::sizeHint() const
{
    if (m_rows.empty())
        return {0, 0};
    const auto shown = static_cast<int>(std::min(m_rows.size(), maxVisibleRows));
    return {m_rows.front()->sizeHint().width(), m_rows.front()->sizeHint().height() * shown};
}

void JobStrip::updateRows()
{
    removeEnded();
    addRows();
    if (!m_rows.empty() && !m_elapsedTimer.isActive())
        m_elapsedTimer.start();
    if (m_rows.empty())
        m_elapsedTimer.stop();
    updateGeometry();
    setVisible(!m_rows.empty());
}

void JobStrip::removeEnded()
{
    std::erase_if(m_rows, [this](JobRow *row) {
        if (m_jobs->find(row->id()))
            return false;
        row->hide();
        row->deleteLater(); // the job may have ended inside a click on its own button
        return true;
    });
}

void JobStrip::addRows()
{
    for (const RunningJob &job : m_jobs->running()) {
        const auto left = showDelay - std::chrono::milliseconds(job.started.elapsed());
        if (std::ranges::find(m_rows, job.id, &JobRow::id) != m_rows.end())
            continue;
        if (left.count() <= 0)
            addRow(job);
        else if (!m_showTimer.isActive())
            m_showTimer.start(left); // later ones are younger
    }
}

void JobStrip::addRow(const RunningJob &job)
{
    auto *row = new JobRow(job, *m_jobs, *this);
    widget()->layout()->addWidget(row);
    m_rows.push_back(row);
}

void JobStrip::showProgress(JobId id)
{
    const auto row = std::ranges::find(m_rows, id, &JobRow::id);
    if (row != m_rows.end())
        (*row)->showProgress(m_jobs->find(id)->progress);
}

void JobStrip::showElapsed()
{
    for (JobRow *row : m_rows)
        row->showElapsed();
}
