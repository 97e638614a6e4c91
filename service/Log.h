#pragma once

#include <string_view>

/// Writes one line to standard error, with the time (UTC) before it. Any thread.
void logLine(std::string_view text);
