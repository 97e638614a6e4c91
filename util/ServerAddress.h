#pragma once

#include <QString>

/// The servers that the program may talk to, or point the user's browser at.
enum class Server { WebSite, Configuration, UpdateFeed, WebService };

/// The address of a server: what the user defaults hold under "Addresses/<name>", else what was
/// compiled in, else an empty text. Any thread.
QString serverAddress(Server server);
