#include "JobRowButton.h"

#include "PlainToolTip.h"

#include <QFocusEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

constexpr int sideMargin = 10;
constexpr int topMargin = 5;
constexpr int gap = 8;

// One line of the row, over its whole width.
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
    if (m_elapsed == elapsed)
        return;
    m_elapsed = elapsed;
    update();
}

QSize JobRowButton::sizeHint() const
{
    const int widest = std::max(fontMetrics().horizontalAdvance(m_title + m_elapsed) + gap,
                                fontMetrics().horizontalAdvance(m_subject));
    return {widest + 2 * sideMargin, minimumSizeHint().height()};
}

QSize JobRowButton::minimumSizeHint() const
{
    return {0, 2 * (fontMetrics().height() + topMargin)};
}

// Told when somebody comes, not every second: nobody wants to hear the seconds.
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
    const QRect inner = rect().adjusted(sideMargin, topMargin, -sideMargin, -topMargin);
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
