// One piece of the product's work in a process of its own, for the trials that kill it or give it
// no room. Writes "begin" to standard output as the work begins; ends with 1 if there is no
// result.
//   trial_worker place FILE TARGET
//   trial_worker download ADDRESS LENGTH KEY SIGNATURE FOLDER
//   trial_worker grant
//   trial_worker zip FOLDER ARCHIVE      the whole application, by its window

#include "Application.h"
#include "FilePlacement.h"
#include "MessageBoxes.h"
#include "PageControls.h"
#include "StoredGrant.h"
#include "UpdateTransfer.h"

#include <QComboBox>
#include <QFileInfo>
#include <QSettings>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

void sayBegin()
{
    if (::write(STDOUT_FILENO, "begin\n", 6) != 6)
        ::_exit(1);
}

bool place(const QStringList &arguments)
{
    sayBegin();
    return placeFile(arguments[0], arguments[1]) == 0;
}

bool download(const QStringList &arguments)
{
    const UpdateItem item{.version = {1, 4},
                          .address = arguments[0].toLatin1(),
                          .length = arguments[1].toLongLong(),
                          .signature = QByteArray::fromBase64(arguments[3].toLatin1())};
    std::atomic<qint64> received = 0;
    sayBegin();
    const FetchedFile fetched = fetchFile(item, QByteArray::fromBase64(arguments[2].toLatin1()),
                                          arguments[4], received, {});
    qInfo().noquote() << fetched.problem.detail;
    return !fetched.file.path.isEmpty();
}

bool grant(const QStringList &)
{
    const QByteArray bookmark(3000, 'b'); // Qt misses that the second page did not fit
    sayBegin();
    StoredGrant::store(bookmark);
    return QFileInfo(QSettings().fileName()).size() > bookmark.size();
}

bool zip(const QStringList &arguments)
{
    Application application;
    application.start();
    const MessageBoxes boxes;
    const auto &page = PageControls::control<QWidget>(application.window(), "ZIPViewController");
    PageControls::fill(page, "srcFolderField", arguments[0]);
    PageControls::fill(page, "outputField", arguments[1]);
    PageControls::control<QComboBox>(page, "ratioPopUp").setCurrentIndex(0);
    PageControls::control<QPushButton>(page, "generateButton").click();
    sayBegin();
    return QTest::qWaitFor([&boxes] { return !boxes.texts.isEmpty(); }, 60'000)
        && QFileInfo::exists(arguments[1]);
}

} // namespace

int main(int argc, char **argv)
{
    // Loaded already; the distribution's programs that are started from here must not load it.
    qunsetenv("LD_PRELOAD");
    const QApplication qt(argc, argv);
    Application::prepare();
    const QMap<QString, std::pair<int, bool (*)(const QStringList &)>> works{
        {u"place"_s, {2, place}},
        {u"download"_s, {5, download}},
        {u"grant"_s, {0, grant}},
        {u"zip"_s, {2, zip}},
    };
    const QStringList arguments = QCoreApplication::arguments();
    const auto [count, work] = works.value(arguments.value(1));
    if (!work || arguments.size() != count + 2
        || !qEnvironmentVariableIsSet("TOOLVANE_TEST_SANDBOX"))
        return 64;
    return work(arguments.mid(2)) ? 0 : 1;
}
