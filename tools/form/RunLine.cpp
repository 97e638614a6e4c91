#include "RunLine.h"

#include "NamedImage.h"
#include "PlainToolTip.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

RunLine::RunLine(QWidget *parent)
    : QWidget(parent), m_text(new QLabel(this)), m_place(new QPushButton(this)),
      m_discard(new QPushButton(this))
{
    m_text->setObjectName(u"runText"_s);
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_place->setObjectName(u"placeButton"_s);
    m_place->setText(qtTrId("Run.OtherPlace"));
    m_place->setAccessibleName(qtTrId("Run.OtherPlace.Name"));
    m_discard->setObjectName(u"discardButton"_s);
    m_discard->setIcon(namedImage(u"discard"_s));
    m_discard->setAccessibleName(qtTrId("Run.Discard.Name"));
    m_discard->setToolTip(qtTrId("Run.Discard.Name"));
    for (QPushButton *button : {m_place, m_discard}) {
        button->setAutoDefault(false);
        button->hide();
    }
    m_discard->setFixedWidth(m_place->sizeHint().height()); // a square

    m_text->setMinimumHeight(2 * fontMetrics().lineSpacing()); // which long sentences take
    QSizePolicy takesWhatIsLeft = m_text->sizePolicy();
    takesWhatIsLeft.setHorizontalPolicy(QSizePolicy::Ignored);
    m_text->setSizePolicy(takesWhatIsLeft);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_place);
    layout->addWidget(m_discard);
    connect(m_place, &QPushButton::clicked, this, &RunLine::placeWanted);
    connect(m_discard, &QPushButton::clicked, this, &RunLine::discardWanted);
    hide();
}

void RunLine::putInTabOrder(QWidget *before, QWidget *after)
{
    QWidget::setTabOrder(before, m_place);
    QWidget::setTabOrder(m_place, m_discard);
    QWidget::setTabOrder(m_discard, after);
}

void RunLine::say(const QString &text)
{
    m_place->hide();
    m_discard->hide();
    m_text->setText(text);
    m_text->setToolTip(QString());
    m_text->setAccessibleName(text);
    show();
    QAccessibleEvent alert(m_text, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

void RunLine::offerPlace(const QString &text, const QString &file)
{
    say(text);
    m_text->setToolTip(plainToolTip(file));
    m_place->show();
    m_discard->show();
}

void RunLine::withdraw()
{
    hide();
}
