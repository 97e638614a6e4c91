// Proves that a child gets exactly what its command says and never outlives the program, however
// that ends.
#include "Child.h"
#include "EndOnSignal.h"
#include "Failure.h"
#include "LastWords.h"
#include "Pipe.h"
#include "RunToEnd.h"
#include "StandinRun.h"

#include <QTest>

#include <sys/wait.h>

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

std::string outputOf(const Command &command)
{
    std::string text;
    runToEnd(command, [&text](std::string_view bytes) { text += bytes; });
    return text;
}

// Starts a program that starts a child which prints its number and sleeps; gives both numbers.
std::pair<pid_t, pid_t> startFamily()
{
    Pipe pipe;
    const pid_t parent = ::fork();
    if (parent == 0) {
        installEndOnSignal();
        Command command = shell("echo $$; exec sleep 60");
        command.output = pipe.writeEnd.number();
        Child child(command);
        child.wait();
        ::_exit(0);
    }
    char number[20] = {};
    [[maybe_unused]] const auto count = ::read(pipe.readEnd.number(), number, sizeof number - 1);
    return {parent, QByteArray(number).trimmed().toInt()};
}

} // namespace

class TestChild : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesArgumentsAsTheyAre()
    {
        const std::string text =
            outputOf(shell("printf '<%s>' \"$@\"", {"", "a b", "-n", "$HOME;'\"\n", "\xff"}));
        QCOMPARE(QByteArray::fromStdString(text), "<><a b><-n><$HOME;'\"\n><\xff>");
    }

    void givesNothingElse()
    {
        Pipe kept;
        Pipe closed;
        Command command = shell("readlink /proc/self/fd/0; echo \"$LC_ALL\"; ls /proc/$$/fd");
        command.passed = {kept.readEnd.number()};
        const std::string expected =
            "/dev/null\nC.UTF-8\n0\n1\n2\n" + std::to_string(kept.readEnd.number()) + "\n";
        QCOMPARE(QByteArray::fromStdString(outputOf(command)), QByteArray::fromStdString(expected));
    }

    void tellsTheEndsApart()
    {
        const auto end = [](const char *script) {
            return QByteArray::fromStdString(Child(shell(script)).wait().text());
        };
        QCOMPARE(end("exit 0"), "status 0");
        QCOMPARE(end("exit 3"), "status 3");
        QCOMPARE(end("kill -9 $$"), "signal 9");
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
        const auto discard = [](std::string_view) {};
        Finished finished =
            runToEnd(shell("echo first >&2; echo last >&2; echo >&2; exit 1"), discard);
        QCOMPARE(finished.lastWords, "last");
        QVERIFY(!finished.succeeded());
        finished = runToEnd(shell("exit 4"), discard);
        QCOMPARE(finished.lastWords, "sh ended with status 4");

        LastWords words;
        for (int count = 0; count < 1000; ++count)
            words.add("\x1b[31mnever a new line ");
        QVERIFY(words.text().size() <= 1000);
        QVERIFY(words.text().find('\x1b') == std::string::npos);
    }

    void readsBothStreamsWithoutBlocking()
    {
        std::size_t size = 0;
        const Finished finished =
            runToEnd(shell("head -c 300000 /dev/zero >&2; head -c 300000 /dev/zero"),
                     [&size](std::string_view bytes) { size += bytes.size(); });
        QVERIFY(finished.succeeded());
        QCOMPARE(size, 300000U);
    }

    void endsAtTheLimit()
    {
        const Finished finished = runToEnd(
            shell("exec sleep 60"), [](std::string_view) {}, std::chrono::milliseconds(50));
        QCOMPARE(finished.end.signal, SIGKILL);
    }

    void endsWhenTheSinkThrows()
    {
        pid_t child = 0;
        try {
            runToEnd(shell("echo $$; exec sleep 60"), [&child](std::string_view bytes) {
                child = QByteArray(bytes.data(), qsizetype(bytes.size())).trimmed().toInt();
                fail("target", "full");
            });
            QFAIL("went on");
        } catch (const Failure &) {
            QVERIFY(child > 0 && !isRunning(child));
        }
    }

    void letsTheDetachedGoOn()
    {
        Pipe pipe;
        Command command = shell("readlink /proc/$$/fd/2; echo $$; exec sleep 60");
        command.output = pipe.writeEnd.number();
        command.lifetime = Command::Lifetime::Detached;
        {
            Child child(command);
            QVERIFY(!child.waitFor(300));
        }
        char text[100] = {};
        QVERIFY(::read(pipe.readEnd.number(), text, sizeof text - 1) > 0);
        const QByteArrayList lines = QByteArray(text).split('\n');
        QCOMPARE(lines[0], "/dev/null");
        const pid_t number = lines[1].toInt();
        QVERIFY(number > 0 && isRunning(number));
        ::kill(number, SIGKILL);
        ::waitpid(number, nullptr, 0);
    }

    void diesWithTheProgram_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("TERM") << SIGTERM;
        QTest::newRow("INT") << SIGINT;
        QTest::newRow("KILL") << SIGKILL;
    }
    void diesWithTheProgram()
    {
        QFETCH(int, signal);
        const auto [parent, child] = startFamily();
        QVERIFY(child > 0 && isRunning(child));
        ::kill(parent, signal);
        int status = 0;
        QTRY_VERIFY(!isRunning(parent)); // now a zombie
        ::waitpid(parent, &status, 0);
        if (signal == SIGKILL) { // the kernel kills the child, in its own time
            QTRY_VERIFY(!isRunning(child));
        } else {
            QVERIFY(!isRunning(child));
            QCOMPARE(WEXITSTATUS(status), 128 + signal);
        }
    }
};

QTEST_GUILESS_MAIN(TestChild)
#include "tst_child.moc"
