#include "PageAction.h"

#include <QDebug>
#include <QObject>

#include <exception>
#include <utility>

using namespace Qt::StringLiterals;

static QCoro::Task<> watch(QString page, QCoro::Task<> action)
{
    QString error = u"unknown exception"_s;
    try {
        co_await action;
        co_return;
    } catch (const std::exception &exception) {
        error = QString::fromLocal8Bit(exception.what());
    } catch (...) {
    }
    qWarning().noquote() << page + u": action abandoned: "_s + error.simplified();
}

void watchPageAction(const QObject *page, QCoro::Task<> action)
{
    watch(QString::fromLatin1(page->metaObject()->className()), std::move(action));
}
