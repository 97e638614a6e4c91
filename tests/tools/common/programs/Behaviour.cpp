// A child process with named behaviours, for the tests of the command runner.
// Files that tell a test something appear complete, by a rename.

#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace
{

using Arguments = std::vector<std::string>;

void writeFile(const std::string &path, const std::string &content)
{
    const std::string unfinished = path + ".unfinished";
    std::ofstream(unfinished, std::ios::binary) << content;
    std::rename(unfinished.c_str(), path.c_str());
}

[[noreturn]] void sleepForever()
{
    for (;;)
        pause();
}

/// The child's pid goes to the file.
[[noreturn]] void sleepBehaviour(const Arguments &arguments)
{
    alarm(120); // stays behind when a test fails, but not for long
    writeFile(arguments.at(0), std::to_string(getpid()));
    sleepForever();
}

[[noreturn]] void ignoreTerm(const Arguments &arguments)
{
    std::signal(SIGTERM, SIG_IGN);
    sleepBehaviour(arguments);
}

/// Its own child ignores TERM, it does not. The file gets the grandchild's pid. "exit" as second
/// argument: leaves the grandchild behind with status 0.
void grandchild(const Arguments &arguments)
{
    if (fork() == 0)
        ignoreTerm(arguments);
    if (arguments.size() < 2)
        sleepForever();
}

void flood()
{
    const std::string text(1 << 20, 'x');
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fwrite(text.data(), 1, text.size(), stderr);
}

/// What a child finds when it starts: one line each, then its arguments separated by null bytes.
void report(const Arguments &arguments)
{
    std::string text;
    char folder[4096];
    text += std::string(getcwd(folder, sizeof folder)) + "\n";
    char byte = 0;
    text += read(STDIN_FILENO, &byte, 1) == 0 ? "stdin at its end\n" : "stdin open\n";
    text += getsid(0) == getpid() && getpgrp() == getpid() ? "leads a session\n" : "led\n";
    sigset_t mask;
    sigprocmask(SIG_SETMASK, nullptr, &mask);
    struct sigaction pipeAction = {};
    sigaction(SIGPIPE, nullptr, &pipeAction);
    const bool plain = !sigismember(&mask, SIGUSR1) && pipeAction.sa_handler == SIG_DFL;
    text += plain ? "plain signals\n" : "odd signals\n";
    for (std::size_t i = 1; i < arguments.size(); ++i)
        text += arguments[i] + '\0';
    writeFile(arguments.at(0), text);
}

} // namespace

int main(int argc, char *argv[])
{
    const Arguments all(argv + 1, argv + argc);
    const std::string behaviour = all.at(0);
    const Arguments arguments(all.begin() + 1, all.end());
    if (behaviour == "exit")
        return std::stoi(arguments.at(0));
    if (behaviour == "crash")
        std::abort();
    if (behaviour == "sleep")
        sleepBehaviour(arguments);
    if (behaviour == "ignore-term")
        ignoreTerm(arguments);
    if (behaviour == "grandchild")
        grandchild(arguments);
    if (behaviour == "flood")
        flood();
    if (behaviour == "report")
        report(arguments);
    return 0;
}
