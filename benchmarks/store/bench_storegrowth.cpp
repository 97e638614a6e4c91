// How a select grows with the number of records: the time for each record stays the same, and the
// memory is that of the records. Must run through tests/support/isolated. The exit status is 1 if a
// figure is over its limit.

#include "BLGeneral.h"
#include "DB.h"
#include "PlainUser.h"
#include "Ratio.h"
#include "SampleUsers.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace
{

bool takesTheSameTimeForEach(BLGeneral &gateway)
{
    std::vector<double> perRow;
    for (const int count : {1'000, 10'000, 100'000, 1'000'000}) {
        fillUsers(count);
        std::vector<double> times;
        for (int i = 0; i < (count > 100'000 ? 5 : 15); ++i)
            times.push_back(Ratio::seconds(
                [&] { expect(gateway.select("1=1", UserSchema{})->size() == count, "select"); }));
        perRow.push_back(median(times) / count * 1e9);
    }
    const auto [min, max] = std::minmax_element(perRow.begin(), perRow.end());
    return Row{.work = "a record of a select, 1,000 to 1,000,000",
               .figure = *max / *min,
               .limit = 1.6,
               .detail = against(*max, *min, "ns")}
        .print();
}

/// The kilobytes that /proc/self/status gives for a word.
double memory(const char *word)
{
    QFile file(u"/proc/self/status"_s);
    expect(file.open(QIODevice::ReadOnly), "status");
    const QByteArray status = file.readAll();
    return status.mid(status.indexOf(word)).simplified().split(' ').value(1).toDouble();
}

/// Runs in a process of its own, because freed memory is reused by the next select. Prints how far
/// the peak is above the memory in use before the select.
int measurePeak(bool isOurs)
{
    DBSession::openDB();
    const double before = memory("VmRSS:");
    if (isOurs)
        expect(DB::select(u"SELECT * FROM User"_s, UserSchema{}).has_value(), "select");
    else
        expect(!plainSelect(DB::getDatabase(), "SELECT * FROM User").isEmpty(), "plain select");
    std::printf("%.0f\n", memory("VmHWM:") - before);
    return 0;
}

double peakOf(const QString &who)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {who});
    expect(process.waitForFinished() && process.exitCode() == 0, "peak");
    return process.readAllStandardOutput().trimmed().toDouble();
}

bool takesTheMemoryOfTheRecords()
{
    const double ours = peakOf(u"ours"_s);
    const double byHand = peakOf(u"hand"_s);
    return Row{.work = "memory of a select of 1,000,000",
               .figure = ours / byHand,
               .limit = 1.05,
               .detail = against(ours / 1024, byHand / 1024, "MB")}
        .print();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    expect(qEnvironmentVariableIsSet("TOOLVANE_TEST_SANDBOX"),
           "run through tests/support/isolated");
    if (argc > 1)
        return measurePeak(QCoreApplication::arguments().value(1) == "ours"_L1);
    DBSession::openDB();
    BLGeneral gateway(u"User"_s);
    const bool isFlat = takesTheSameTimeForEach(gateway);
    return takesTheMemoryOfTheRecords() && isFlat ? 0 : 1;
}
