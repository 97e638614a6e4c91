#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// What the program's arguments ask for. It opens no window and writes nothing.
class CommandLine
{
public:
    /// Whether the arguments only ask for a text, which must come without any screen.
    static bool asksForText(int argc, char **argv);

    /// The arguments as QCoreApplication gives them, the program's name first: those that Qt knows
    /// are taken out already. Needs the application object, for the texts.
    explicit CommandLine(const QStringList &arguments);

    /// The command name of the tool to open; empty for none.
    const QString &page() const { return m_page; }
    /// Set when the program is to print text() and end: 0, or EX_USAGE of sysexits.h.
    std::optional<int> exitStatus() const { return m_exitStatus; }
    /// For standard output with status 0, else for standard error. Ends with a line feed.
    const QString &text() const { return m_text; }

private:
    void endWith(int status, const QString &text);

    QString m_page;
    std::optional<int> m_exitStatus;
    QString m_text;
};
