#include "ElapsedLabel.h"

#include "Job.h"
#include "PageStatus.h"

#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

ElapsedLabel::ElapsedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    PageStatus::keepSpaceWhenHidden(*this);
    setVisible(false);
    m_everySecond.setInterval(1s);
    m_everySecond.setTimerType(Qt::PreciseTimer); // others come early, and show the second before
    connect(&m_everySecond, &QTimer::timeout, this, &ElapsedLabel::updateText);
}

QSize ElapsedLabel::sizeHint() const
{
    const QMargins margins = contentsMargins();
    const int inner = fontMetrics().horizontalAdvance(u"00:00:00"_s) + 2 * margin();
    return {inner + margins.left() + margins.right(), QLabel::sizeHint().height()};
}

void ElapsedLabel::setRunning(bool running)
{
    m_started.start();
    updateText();
    setVisible(running);
}

void ElapsedLabel::hold()
{
    updateText();
    m_started.invalidate();
}

// Also sent when the page as a whole is shown or hidden: the time goes on, the timer need not.
void ElapsedLabel::showEvent(QShowEvent *event)
{
    updateText();
    m_everySecond.start();
    QLabel::showEvent(event);
}

void ElapsedLabel::hideEvent(QHideEvent *event)
{
    m_everySecond.stop();
    QLabel::hideEvent(event);
}

void ElapsedLabel::updateText()
{
    if (m_started.isValid())
        setText(elapsedText(m_started.elapsed()));
}
