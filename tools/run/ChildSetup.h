#pragma once

#include <QByteArray>

#include <functional>
#include <optional>

/// What a child process does between fork and exec: default signal mask and dispositions, a session
/// and process group of its own, death with the calling thread, then the working directory. When
/// the directory cannot be entered, the child says so on standard error and exits with status 66
/// (EX_NOINPUT of sysexits.h). Uses async-signal-safe calls only.
std::function<void()> childSetup(const std::optional<QByteArray> &workingDirectory);
