#include "CommandLine.h"

#include "Tool.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <sysexits.h>

#include <algorithm>
#include <span>
#include <string_view>

using namespace Qt::StringLiterals;

bool CommandLine::asksForText(int argc, char **argv)
{
    using namespace std::string_view_literals;
    static constexpr auto texts = {"-h"sv, "--help"sv, "-v"sv, "--version"sv};
    const auto arguments = std::span(argv, static_cast<std::size_t>(argc));
    return std::ranges::any_of(arguments, [](std::string_view argument) {
        return std::ranges::find(texts, argument) != texts.end();
    });
}

CommandLine::CommandLine(const QStringList &arguments)
{
    const QString pages = toolCommandNames().join(u", "_s);
    QCommandLineParser parser;
    parser.setApplicationDescription(qtTrId("CommandLine.Description"));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions); // as Qt's own are
    parser.addPositionalArgument(u"PAGE"_s, qtTrId("CommandLine.Page").arg(pages), u"[PAGE]"_s);
    // Qt's own two would be English in languages that Qt has no texts for.
    const QCommandLineOption help({u"h"_s, u"help"_s}, qtTrId("CommandLine.Help"));
    const QCommandLineOption version({u"v"_s, u"version"_s}, qtTrId("CommandLine.Version"));
    parser.addOptions({help, version});

    const bool isUnderstood = parser.parse(arguments);
    const QStringList names = parser.positionalArguments();
    const auto unknown =
        std::ranges::find_if(names, [](const QString &name) { return !rowOfTool(name); });
    if (parser.isSet(help))
        endWith(EX_OK, parser.helpText());
    else if (parser.isSet(version))
        endWith(EX_OK,
                QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion()
                    + u'\n');
    else if (!isUnderstood)
        endWith(EX_USAGE, parser.errorText() + u'\n');
    else if (unknown != names.end())
        endWith(EX_USAGE, qtTrId("CommandLine.UnknownPage").arg(*unknown, pages) + u'\n');
    else if (names.size() > 1)
        endWith(EX_USAGE, parser.helpText());
    else
        m_page = names.value(0);
}

void CommandLine::endWith(int status, const QString &text)
{
    m_exitStatus = status;
    m_text = text;
}
