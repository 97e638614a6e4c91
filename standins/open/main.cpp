// Shows a folder, or a file in its folder, in the desktop's file manager, taking the arguments of
// macOS's open.

#include "Failure.h"
#include "Program.h"
#include "RunToEnd.h"

#include <QByteArray>

#include <filesystem>

using namespace standin;
namespace fs = std::filesystem;

namespace
{

constexpr std::chrono::seconds busTimeout{8}; // the bus may have to start the file manager first
constexpr int openerTimeout = 3000; // milliseconds

// Links stay as they are: the person sees the path that was given.
fs::path absolutePath(const std::string &path, fs::file_status status)
{
    if (!fs::exists(status))
        throw Failure(Failed, "The file " + path + " does not exist.");
    return fs::absolute(path).lexically_normal();
}

// Itself, or the folder that a file is in.
fs::path folderToShow(const std::string &path)
{
    std::error_code error;
    const auto status = fs::status(path, error);
    const auto absolute = absolutePath(path, status);
    return fs::is_directory(status) ? absolute : absolute.parent_path();
}

// A file, folder or link, without a slash at its end.
fs::path itemToShow(const std::string &path)
{
    std::error_code error;
    const auto absolute = absolutePath(path, fs::symlink_status(path, error));
    return absolute.has_filename() ? absolute : absolute.parent_path();
}

// RFC 8089. Everything but letters, digits and "/-._~" is percent-encoded, as some receivers split
// at other characters that an address may contain.
std::string fileAddress(const fs::path &path)
{
    const auto bytes = QByteArray::fromStdString(path);
    return "file://" + bytes.toPercentEncoding("/").toStdString();
}

// Nothing if a file manager showed the address, else why not. busctl is taken rather than a D-Bus
// library: the one call costs a few milliseconds, takes typed arguments, and never starts a bus.
std::string whyNotOnBus(const std::string &method, const std::string &address)
try {
    const Command call{
        .program = "busctl",
        .package = "systemd",
        .arguments = {"--user", "--quiet", "--timeout=8", "call", "org.freedesktop.FileManager1",
                      "/org/freedesktop/FileManager1", "org.freedesktop.FileManager1", method,
                      "ass", "1", address, ""}};
    const Finished finished = runToEnd(call, discard, busTimeout);
    return finished.succeeded() ? std::string() : finished.lastWords;
} catch (const Failure &failure) {
    return failure.what();
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

// On some desktops xdg-open lives as long as the window, so it is left alone after a while.
void startOpener(const fs::path &folder)
{
    Child opener({.program = "xdg-open",
                  .package = "xdg-utils",
                  .arguments = {fileAddress(folder)},
                  .lifetime = Command::Lifetime::Detached});
    if (!opener.waitFor(openerTimeout))
        return;
    if (const ChildEnd end = opener.wait(); !end.succeeded())
        fail(folder, "xdg-open ended with " + end.text());
}

// Calls the method (org.freedesktop.FileManager1) of the file manager on the session bus, else
// starts xdg-open, which cannot select an item in its folder.
void show(const std::string &method, const fs::path &path, const fs::path &folder)
{
    const std::string reason = whyNotOnBus(method, fileAddress(path));
    if (reason.empty())
        return;
    if (!hasDisplay())
        fail(path, "No file manager (" + reason + ")");
    startOpener(folder);
}

void open(const Arguments &arguments)
{
    if (arguments.size() == 3 && arguments[0] == "-a" && arguments[1] == "Finder") {
        const fs::path folder = folderToShow(arguments[2]);
        show("ShowFolders", folder, folder);
    } else if (arguments.size() == 2 && arguments[0] == "-R") {
        const fs::path item = itemToShow(arguments[1]);
        show("ShowItems", item, item.parent_path());
    } else {
        throw WrongUsage();
    }
}

} // namespace

int main(int argc, char **argv)
{
    return runProgram("open", "open -a Finder FOLDER | open -R FILE", argc, argv, open);
}
