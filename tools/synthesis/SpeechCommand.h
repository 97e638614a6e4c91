#pragma once

#include "Command.h"

/// What the speech page asks of the system's speech program. Free of side effects.
namespace SpeechCommand
{

/// How a text is to be spoken.
struct Manner {
    QString voice; ///< A voice name that the speech program knows.
    int rate; ///< Words per minute.
};

/// Speaks the text aloud. The text always comes first, whatever it begins with.
Command read(const QString &text, const Manner &manner);

/// Writes the spoken text into a sound file.
Command save(const QString &text, const Manner &manner, const QString &file);

} // namespace SpeechCommand
