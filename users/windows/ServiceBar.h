#pragma once

#include "Http.h"
#include "WebService.h"

#include <QFutureWatcher>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <stop_token>

class QLabel;
class QStackedLayout;

/// A line that says where the web service keeps the records and, as soon as it does not answer,
/// since when. The protocol of the records hides such a failure: a write reads as success.
///
/// While the line is shown, the service is checked off the interface thread. One without an address
/// for the check (404) counts as reachable.
class ServiceBar : public QWidget
{
    Q_OBJECT

public:
    explicit ServiceBar(const QString &address, QWidget *parent = nullptr);
    ~ServiceBar() override; ///< Does not wait for a check that is under way.

    /// Between two checks; ten seconds. A change applies to lines that are shown afterwards.
    static std::chrono::milliseconds &interval();

Q_SIGNALS:
    void reachableChanged(bool isReachable); ///< At first it is reachable.

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void check();
    void takeReply();
    void showLost(const HttpReply &reply);

    const WebService m_service;
    QString m_place; ///< As it is shown.
    QStackedLayout *m_lines; ///< Both have room, so that nothing moves when they change places.
    QLabel *m_placeLine;
    QLabel *m_lostLine;
    QTimer m_timer;
    QFutureWatcher<HttpReply> m_reply;
    std::stop_source m_stop;
};
