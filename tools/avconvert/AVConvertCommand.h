#pragma once

#include "Command.h"

/// What the video conversion page asks of the system's converter. Free of side effects.
namespace AVConvertCommand
{

/// Converts the source video into the output file. Without a preset nothing can be named after
/// "--preset": the list of arguments ends there and the converter refuses it.
Command convert(const std::optional<QString> &preset, const QString &source, const QString &output);

} // namespace AVConvertCommand
