#pragma once

#include <string>

namespace standin
{

// Shows the folder in the desktop's file manager: asks the one on the session bus, else starts
// xdg-open. Fails when neither takes it.
void showFolder(const std::string &folder);

} // namespace standin
