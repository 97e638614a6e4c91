#include "JobRow.h"

#include "NamedImage.h"
#include "PlainToolTip.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace
{

constexpr int sideMargin = 8;
constexpr int stopSize = 32;
constexpr int stopIconSize = 18;
constexpr int textMargin = 10;
constexpr int topMargin = 5;
constexpr int gap = 8;

// One line of the button, over its whole width.
struct Line {
    QStylePainter &painter;
    const QStyleOption &option;
    QRect rect;

    void draw(const QString &text, Qt::Alignment side, QPalette::ColorRole role) const
    {
        const auto flags = QStyle::visualAlignment(option.direction, side | Qt::AlignVCenter);
        // A path reads from left to right in a window that does not.
        const int direction =
            text.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
        painter.drawItemText(rect, static_cast<int>(flags) | Qt::TextSingleLine | direction,
                             option.palette, true, text, role);
    }
};

} // namespace

// Names the job: its title and how long it has run, and below them what it is done to, shortened in
// the middle. What it says can change every second without any layout being done again.
class JobRowButton : public QPushButton
{
public:
    JobRowButton(const QString &title, const QString &subject, QWidget *parent);

    void setElapsed(const QString &elapsed);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void focusInEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_title;
    QString m_subject;
    QString m_elapsed;
};

JobRowButton::JobRowButton(const QString &title, const QString &subject, QWidget *parent)
    : QPushButton(parent), m_title(title), m_subject(subject)
{
    setFlat(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(subject.isEmpty() ? title : title + u": "_s + subject);
    const QString tip = qtTrId("Jobs.Show.Tip");
    setToolTip(plainToolTip(subject.isEmpty() ? tip : subject + u'\n' + tip));
}

void JobRowButton::setElapsed(const QString &elapsed)
{
    if (std::exchange(m_elapsed, elapsed) != elapsed)
        update();
}

QSize JobRowButton::sizeHint() const
{
    const int widest = std::max(fontMetrics().horizontalAdvance(m_title + m_elapsed) + gap,
                                fontMetrics().horizontalAdvance(m_subject));
    return {widest + 2 * textMargin, minimumSizeHint().height()};
}

QSize JobRowButton::minimumSizeHint() const
{
    return {0, 2 * (fontMetrics().height() + topMargin)};
}

// Set when the focus comes, not every second: a screen reader would read out the seconds.
void JobRowButton::focusInEvent(QFocusEvent *event)
{
    setAccessibleDescription(m_elapsed + u". "_s + qtTrId("Jobs.Show.Tip"));
    QPushButton::focusInEvent(event);
}

void JobRowButton::paintEvent(QPaintEvent *)
{
    QStyleOptionButton option;
    initStyleOption(&option);
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButtonBevel, option);
    const QRect inner = rect().adjusted(textMargin, topMargin, -textMargin, -topMargin);
    QRect half = inner;
    half.setHeight(inner.height() / 2);
    const Line first{painter, option, half};
    first.draw(m_elapsed, Qt::AlignRight, QPalette::PlaceholderText);
    const int room = inner.width() - fontMetrics().horizontalAdvance(m_elapsed) - gap;
    first.draw(fontMetrics().elidedText(m_title, Qt::ElideRight, room), Qt::AlignLeft,
               QPalette::WindowText);

    half.moveBottom(inner.bottom());
    const Line second{painter, option, half};
    second.draw(fontMetrics().elidedText(m_subject, Qt::ElideMiddle, inner.width()), Qt::AlignLeft,
                QPalette::PlaceholderText);
}

JobRow::JobRow(const RunningJob &job, QWidget *parent)
    : QWidget(parent), m_id(job.id), m_started(job.started),
      m_button(new JobRowButton(job.description.title, job.description.subject, this))
{
    connect(m_button, &QPushButton::clicked, this,
            [this, page = job.description.page] { Q_EMIT pageWanted(page); });
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(sideMargin, 0, sideMargin, 0);
    layout->setSpacing(0);
    layout->addWidget(m_button, 1);
    layout->addWidget(makeStopButton(job.description.title));
    showElapsed();
}

QPushButton *JobRow::makeStopButton(const QString &title)
{
    auto *button = new QPushButton(this);
    button->setFlat(true);
    button->setIcon(namedImage(u"stop"_s));
    button->setIconSize({stopIconSize, stopIconSize});
    button->setFixedSize(stopSize, stopSize);
    button->setToolTip(qtTrId("Jobs.Stop"));
    button->setAccessibleName(qtTrId("Jobs.Stop.Name").arg(title));
    connect(button, &QPushButton::clicked, this, [this, button] {
        button->setEnabled(false); // the run may take some seconds to end
        Q_EMIT stopWanted(m_id);
    });
    return button;
}

void JobRow::showElapsed()
{
    m_button->setElapsed(elapsedText(m_started.elapsed()));
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
