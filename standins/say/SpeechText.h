#pragma once

#include <optional>
#include <string>

namespace standin
{

/// The text as the synthesiser may get it: valid UTF-8 (anything else is dropped), no control
/// characters but newline and tab (a byte 1 begins a command to it), and no "[[" (would be spoken
/// as phonemes).
std::string speakableText(const std::string &bytes);

/// Words a minute from a decimal number with a point or a comma, rounded and held to what the
/// synthesiser can do, 80 to 900. Nothing for anything else. Does not depend on the locale.
std::optional<int> speakingRate(std::string text);

} // namespace standin
