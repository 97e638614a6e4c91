#include "ServiceBar.h"

#include "ThemedLabels.h"

#include <QAccessible>
#include <QDebug>
#include <QLocale>
#include <QStackedLayout>
#include <QTime>
#include <QUrl>
#include <QtConcurrentRun>

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

constexpr int maxPlaceWidth = 400; // a longer address loses its middle
constexpr auto maxCheckTime = 10s;
constexpr QMargins margins(24, 12, 24, 0); // under each other: this line, the tabs, the pages

/// Kept from left to right also in a sentence from right to left. An "@" in it may end a password
/// that holds an unescaped slash.
QString shownPlace(const QString &place, const QFontMetrics &metrics)
{
    const QString shown = place.section(u'@', -1);
    return u'\u2066' + metrics.elidedText(shown, Qt::ElideMiddle, maxPlaceWidth) + u'\u2069';
}

QString lostText(const QString &place)
{
    const QString now = QLocale().toString(QTime::currentTime(), QLocale::ShortFormat);
    return qtTrId("Records.Service.Lost").arg(place, now);
}

QLabel *line(QLabel *label, const QString &text)
{
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setContentsMargins(margins);
    label->setText(text);
    return label;
}

} // namespace

ServiceBar::ServiceBar(const QString &address, QWidget *parent)
    : QWidget(parent), m_service(address), m_place(shownPlace(m_service.place(), fontMetrics())),
      m_lines(new QStackedLayout(this)),
      m_placeLine(line(new HintLabel, qtTrId("Records.Service").arg(m_place))),
      m_lostLine(line(new QLabel, lostText(m_place)))
{
    m_placeLine->setObjectName(u"servicePlaceLabel"_s);
    m_lostLine->setObjectName(u"serviceLostLabel"_s);
    m_lostLine->setForegroundRole(QPalette::BrightText);
    m_lines->addWidget(m_placeLine);
    m_lines->addWidget(m_lostLine);
    connect(&m_timer, &QTimer::timeout, this, &ServiceBar::check);
    connect(&m_reply, &QFutureWatcher<HttpReply>::finished, this, &ServiceBar::takeReply);
}

ServiceBar::~ServiceBar()
{
    m_stop.request_stop();
}

std::chrono::milliseconds &ServiceBar::interval()
{
    static std::chrono::milliseconds interval = 10s;
    return interval;
}

void ServiceBar::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    m_timer.start(interval());
    check();
}

void ServiceBar::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (!event->spontaneous())
        m_timer.stop();
}

void ServiceBar::check()
{
    if (m_reply.isRunning())
        return;
    HttpRequest request = m_service.healthRequest();
    request.limits.time = std::min<std::chrono::milliseconds>(request.limits.time, maxCheckTime);
    request.stop = m_stop.get_token();
    request.isLogged = false; // the first of a row is logged below
    m_reply.setFuture(QtConcurrent::run([request] { return httpGet(request); }));
}

void ServiceBar::takeReply()
{
    const HttpReply reply = m_reply.result();
    const bool isReachable = reply.succeeded() || (reply.answered() && reply.status == 404);
    const bool wasReachable = m_lines->currentWidget() == m_placeLine;
    if (isReachable == wasReachable)
        return;
    if (isReachable)
        m_lines->setCurrentWidget(m_placeLine);
    else
        showLost(reply);
    Q_EMIT reachableChanged(isReachable);
}

void ServiceBar::showLost(const HttpReply &reply)
{
    qWarning().noquote() << QUrl(m_service.place()).host() + u':'
                         << (reply.answered() ? "HTTP " + QByteArray::number(reply.status)
                                              : reply.message);
    m_lostLine->setText(lostText(m_place));
    m_lines->setCurrentWidget(m_lostLine);
    QAccessibleEvent alert(m_lostLine, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}
