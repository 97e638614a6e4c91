#pragma once

#include <QString>

#include <functional>

class QObject;

/// Opens a file with the program that the desktop has set up for its kind. `failed` is called if
/// none did within ten seconds; not once the context is gone. What was started outlives both.
/// Interface thread only.
void openWithDesktop(const QString &path, QObject &context, std::function<void()> failed);
