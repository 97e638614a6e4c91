#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace standin
{

// Language code of the voice with this title in the list that `espeak-ng --voices` prints (which
// shows blanks as underscores). Titles are compared exactly.
std::optional<std::string> voiceCode(std::string_view list, std::string_view title);

// The same with the list of the installed synthesiser; an unknown title fails. The title itself
// never reaches the synthesiser, which would take a path for a voice file.
std::string requireVoice(std::string_view title);

} // namespace standin
