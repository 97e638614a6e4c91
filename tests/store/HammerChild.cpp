// Inserts and selects without a pause, for the tests that run several of these against one file and
// kill them: hammer_child NAME SECONDS held|each. Writes the name of each row to standard output
// once its insert has succeeded, and "LOST" if a select no longer finds them.

#include "BLGeneral.h"
#include "DB.h"
#include "SampleRecords.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

void say(const QString &line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    if (::write(STDOUT_FILENO, bytes.data(), std::size_t(bytes.size())) != bytes.size())
        ::_exit(1); // the reader is gone
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4 || !qEnvironmentVariableIsSet("TOOLVANE_TEST_SANDBOX"))
        return 64;
    const QString name = arguments[1];
    const qint64 milliseconds = arguments[2].toInt() * 1000;

    DBSession::openDB();
    if (arguments[3] != "held"_L1)
        DBSession::closeDB();
    BLGeneral gateway(u"Price"_s);
    QElapsedTimer time;
    time.start();
    qsizetype count = 0;
    for (int i = 0; time.elapsed() < milliseconds; ++i) {
        const QString row = name + u'-' + QString::number(i);
        if (gateway.insert(PriceSchema{0, row, i / 4.0})) {
            ++count;
            say(row);
        }
        ::usleep(1000); // SQLite has no queue for waiting processes: a gap lets them in
        if (i % 16 != 0)
            continue;
        const auto rows =
            gateway.select(QString("Name LIKE '"_L1 + name + "-%'"_L1), PriceSchema{});
        if (!rows || rows->size() < count)
            say(u"LOST"_s);
    }
    return 0;
}
