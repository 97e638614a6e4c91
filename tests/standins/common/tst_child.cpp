// Proves that a child gets exactly what its command says, and that its last words and its end are
// reported.
#include "Child.h"
#include "Failure.h"
#include "RunToEnd.h"
#include "StandinRun.h"

#include <QTest>

#include <csignal>

using namespace standin;

namespace
{

Command shell(const std::string &script, std::vector<std::string> more = {})
{
    Command command{.program = "sh", .package = "dash", .arguments = {"-c", script, "sh"}};
    command.arguments.insert(command.arguments.end(), more.begin(), more.end());
    return command;
}

} // namespace

class TestChild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void getsItsArgumentsAndNothingElse()
    {
        Pipe kept;
        const FileDescriptor closed(::dup(kept.readEnd.number())); // without close-on-exec
        Command command = shell("readlink /proc/self/fd/0; printf \"$LC_ALL\"; "
                                "printf '<%s>' \"$@\"; ls /proc/$$/fd",
                                {"", "-n", "$HOME;'\"\n", "\xff"});
        command.passed = {kept.readEnd.number()};
        const std::string expected = "/dev/null\nC.UTF-8<><-n><$HOME;'\"\n><\xff>0\n1\n2\n"
            + std::to_string(kept.readEnd.number()) + "\n";
        std::string text;
        runToEnd(command, [&text](std::string_view bytes) { text += bytes; });
        QCOMPARE(QByteArray::fromStdString(text), QByteArray::fromStdString(expected));
    }

    void namesTheMissingPackage()
    {
        try {
            Child child({.program = "no-such-program", .package = "some-package"});
            QFAIL("started");
        } catch (const Failure &failure) {
            QCOMPARE(failure.what(), "no-such-program is not installed (package some-package)");
            QCOMPARE(failure.status, ProgramMissing);
        }
    }

    void keepsTheLastWords()
    {
        QCOMPARE(runToEnd(shell("echo first >&2; echo last >&2; echo >&2"), discard).lastWords,
                 "last");
        QCOMPARE(runToEnd(shell("kill -9 $$"), discard).lastWords, "sh ended with signal 9");
        Command command = shell("printf 'the\\treason\\r\\nno reason\\n' >&2");
        command.isReason = [](std::string_view line) { return line != "no reason"; };
        QCOMPARE(runToEnd(command, discard).lastWords, "the reason");

        const auto endless = runToEnd(shell("yes \"$(printf '\\033[31m')\" | head -c 3000000"
                                            " | tr '\\n' x >&2"),
                                      discard)
                                 .lastWords;
        QCOMPARE(endless.size(), 1000U);
        QVERIFY(endless.find('\x1b') == std::string::npos);
    }

    void endsAtTheTimeout()
    {
        const Finished finished =
            runToEnd(shell("exec sleep 60"), discard, std::chrono::milliseconds(50));
        QCOMPARE(finished.end.signal, SIGKILL);
    }

    void endsWhenTheSinkThrows()
    {
        pid_t child = 0;
        try {
            runToEnd(shell("head -c 300000 /dev/zero >&2; echo $$; exec sleep 60"),
                     [&child](std::string_view bytes) {
                         child =
                             QByteArray(bytes.data(), qsizetype(bytes.size())).trimmed().toInt();
                         fail("target", "full");
                     });
            QFAIL("went on");
        } catch (const Failure &) {
            QVERIFY(child > 0 && !isRunning(child));
        }
    }
};

QTEST_GUILESS_MAIN(TestChild)
#include "tst_child.moc"
