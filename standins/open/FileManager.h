#pragma once

#include <string>

namespace standin
{

// Shows the folder in the desktop's file manager: asks the one on the session bus, else starts
// xdg-open. Fails when neither takes it.
void showFolder(const std::string &folder);

// Shows the folder that the item lies in, with the item selected where the file manager can do that
// (ShowItems of org.freedesktop.FileManager1; xdg-open cannot). Fails as showFolder() does.
void showItem(const std::string &item);

} // namespace standin
