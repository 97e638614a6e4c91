#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// The program's arguments, parsed and checked. Opens no window and prints nothing: what the user
/// is to read is returned, in the user's language.
class CommandLine
{
public:
    /// Whether the program is only to print a text (help, version), which must work without a
    /// screen. It looks at `main()`'s own arguments, because the application object that parses
    /// them depends on the answer: one with windows, or one without.
    static bool asksForText(int argc, char **argv);

    /// Takes QCoreApplication::arguments(): the program's name first, Qt's own options removed.
    /// Needs the application object and the texts (Application::prepare()).
    explicit CommandLine(const QStringList &arguments);

    /// The command name of the tool to open; empty for none.
    const QString &page() const { return m_page; }
    /// Set if the program is to print text() and end: 0, or EX_USAGE of `sysexits.h`.
    std::optional<int> exitStatus() const { return m_exitStatus; }
    /// For standard output with status 0, else for standard error. Ends with a line feed.
    const QString &text() const { return m_text; }

private:
    /// Makes this a start that prints the text and ends.
    void endWith(int status, const QString &text);

    QString m_page;
    std::optional<int> m_exitStatus;
    QString m_text;
};
