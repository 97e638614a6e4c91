#include "AVConvertCommand.h"

using namespace Qt::StringLiterals;

Command AVConvertCommand::convert(const std::optional<QString> &preset, const QString &source,
                                  const QString &output)
{
    QStringList arguments{u"--preset"_s};
    if (preset)
        arguments << *preset << u"--source"_s << source << u"--output"_s << output << u"-q"_s;
    return {.launchPath = u"/usr/bin/avconvert"_s, .arguments = arguments};
}
