#include "Program.h"

#include "EndOnSignal.h"
#include "Failure.h"

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <string_view>

namespace standin
{

namespace
{

// A descriptor that we open must never land on 0 to 2, where a child expects its own.
void fillStandardDescriptors()
{
    int number = 0;
    do
        number = ::open("/dev/null", O_RDWR);
    while (number >= 0 && number <= STDERR_FILENO);
    if (number > STDERR_FILENO)
        ::close(number);
}

// One write, so that lines of several programs do not mix in a shared log.
void printLine(const std::string &text)
{
    const std::string line = printable(text) + '\n';
    [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line.data(), line.size());
}

} // namespace

int runProgram(const char *name, const char *usage, int argc, char **argv,
               const std::function<void(const Arguments &)> &work)
{
    fillStandardDescriptors();
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
    installEndOnSignal();
    try {
        work(argc > 0 ? Arguments(argv + 1, argv + argc) : Arguments());
        return Success;
    } catch (const WrongUsage &) {
        printLine(std::string("usage: ") + usage);
        return UsageWrong;
    } catch (const Failure &failure) {
        printLine(std::string(name) + ": " + failure.what());
        return failure.status;
    } catch (const std::exception &exception) {
        printLine(std::string(name) + ": " + exception.what());
        return Failed;
    }
}

} // namespace standin
