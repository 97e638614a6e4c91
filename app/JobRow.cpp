#include "JobRow.h"

#include "JobRowButton.h"
#include "NamedImage.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace
{

constexpr int sideMargin = 8;
constexpr int stopSize = 32;
constexpr int stopIconSize = 18;

} // namespace

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
        button->setEnabled(false); // the run was told; it may take some seconds to end
        Q_EMIT stopWanted(m_id);
    });
    return button;
}

void JobRow::showElapsed()
{
    m_button->setElapsed(elapsedText(m_started.elapsed()));
}

// Buttons leave Return to whoever holds them.
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
