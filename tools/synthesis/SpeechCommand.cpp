#include "SpeechCommand.h"

using namespace Qt::StringLiterals;

Command SpeechCommand::read(const QString &text, const Manner &manner)
{
    return {.launchPath = u"/usr/bin/say"_s,
            .arguments = {text, u"--voice="_s + manner.voice,
                          u"--rate="_s + QString::number(manner.rate)}};
}

Command SpeechCommand::save(const QString &text, const Manner &manner, const QString &file)
{
    Command command = read(text, manner);
    command.arguments << u"--output-file="_s + file;
    return command;
}
