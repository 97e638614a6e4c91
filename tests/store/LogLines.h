#pragma once

#include <QStringList>

/// Keeps the lines that reach the system log, in place of Qt Test's own keeping.
class LogLines
{
public:
    static void keepFromNow() ///< Within a test or its init(): Qt Test starts its own before.
    {
        qInstallMessageHandler(&LogLines::keep);
        lines().clear();
    }
    static QStringList take() { return std::exchange(lines(), {}); } ///< Those since the last call.

private:
    static QStringList &lines()
    {
        static QStringList lines;
        return lines;
    }
    static void keep(QtMsgType, const QMessageLogContext &, const QString &line)
    {
        lines().append(line);
    }
};
