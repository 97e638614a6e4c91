#include "FileManager.h"

#include "Failure.h"
#include "FolderAddress.h"
#include "RunToEnd.h"

#include <cstdlib>
#include <filesystem>

namespace standin
{

namespace
{

constexpr std::chrono::seconds busPatience{8}; // the bus may have to start the file manager first
constexpr int openerPatience = 3000; // milliseconds

// Nothing when a file manager showed the address, else why not. busctl is taken rather than a D-Bus
// library: the one call costs a few milliseconds, takes typed arguments, and never starts a bus.
std::string whyNotOnBus(const std::string &method, const std::string &address)
try {
    const Command call{
        .program = "busctl",
        .package = "systemd",
        .arguments = {"--user", "--quiet", "--timeout=8", "call", "org.freedesktop.FileManager1",
                      "/org/freedesktop/FileManager1", "org.freedesktop.FileManager1", method,
                      "ass", "1", address, ""}};
    const Finished finished = runToEnd(
        call, [](std::string_view) {}, busPatience);
    return finished.succeeded() ? std::string() : finished.lastWords;
} catch (const Failure &failure) {
    return failure.what();
}

bool hasDisplay()
{
    const auto isSet = [](const char *name) {
        const char *value = std::getenv(name);
        return value != nullptr && *value != '\0';
    };
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY");
}

// On some desktops xdg-open lives as long as the window, so it is left alone after a while.
void startOpener(const std::string &folder, const std::string &address)
{
    Child opener({.program = "xdg-open",
                  .package = "xdg-utils",
                  .arguments = {address},
                  .lifetime = Command::Lifetime::Detached});
    if (!opener.waitFor(openerPatience))
        return;
    if (const ChildEnd end = opener.wait(); !end.succeeded())
        fail(folder, "xdg-open ended with " + end.text());
}

void show(const std::string &method, const std::string &path, const std::string &folder)
{
    const std::string reason = whyNotOnBus(method, fileAddress(path));
    if (reason.empty())
        return;
    if (!hasDisplay())
        fail(path, "No file manager (" + reason + ")");
    startOpener(folder, fileAddress(folder));
}

} // namespace

void showFolder(const std::string &folder)
{
    show("ShowFolders", folder, folder);
}

void showItem(const std::string &item)
{
    show("ShowItems", item, std::filesystem::path(item).parent_path().string());
}

} // namespace standin
