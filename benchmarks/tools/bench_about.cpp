// The cost of a list of 1,000 applications with cached icons on the About page: work of the
// interface thread until it is shown, pauses while it scrolls, memory for its icons. The exit
// status is 1 if a figure is over its limit.

#include "AboutViewController.h"
#include "MiscTool.h"
#include "Row.h"
#include "Theme.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>
#include <QTranslator>
#include <QVBoxLayout>

#include <algorithm>
#include <ctime>
#include <vector>

using namespace Qt::StringLiterals;

namespace
{

constexpr int apps = 1000;
constexpr int rounds = 9;
constexpr int step = 5 * 44; // pixels of one turn of the wheel, in rows

QString textOf(int app)
{
    return u"Application %1 that does one thing well, and says so at some length"_s.arg(app);
}

void writeFile(const QString &name, const QByteArray &bytes)
{
    QFile file(QDir(MiscTool::getAppDocumentFolder()).filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write the sample list");
}

// Different pictures that do not compress well.
void writeIcon(int app)
{
    QImage image(128, 128, QImage::Format_ARGB32);
    quint32 state = quint32(app);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            state = state * 1664525 + 1013904223;
            image.setPixel(x, y, state | 0xff000000U);
        }
    }
    image.save(QDir(MiscTool::getAppDocumentFolder()).filePath(u"icon-%1"_s.arg(app)), "png");
}

void writeList()
{
    QByteArray list = "<plist version=\"1.0\"><dict><key>Apps</key><array>";
    for (int app = 0; app < apps; ++app) {
        list += "<dict><key>Icon</key><string>icon-" + QByteArray::number(app)
            + "</string><key>Name</key><string>" + QByteArray::number(app)
            + "</string><key>Desc</key><string>" + textOf(app).toUtf8()
            + "</string><key>Type</key><string>Tool</string></dict>";
        writeIcon(app);
    }
    writeFile(u"Apps.plist"_s, list + "</array></dict></plist>");
}

/// Milliseconds that this thread has worked.
double work()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) / 1e6;
}

double memory()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray text = status.readAll();
    return text.mid(text.indexOf("VmRSS:") + 6).trimmed().split(' ').first().toDouble() / 1024;
}

bool showsIcons(QTableView &table)
{
    const int last = std::max(0, table.rowAt(table.viewport()->height() - 1));
    for (int line = table.rowAt(0); line <= last; ++line) {
        const QModelIndex cell = table.model()->index(line, 0);
        if (!cell.isValid() || cell.data(Qt::DecorationRole).value<QIcon>().isNull())
            return false;
    }
    return true;
}

double pageWork(std::unique_ptr<AboutViewController> &page)
{
    page.reset();
    const double begin = work();
    page = std::make_unique<AboutViewController>();
    page->resize(820, 600);
    page->show();
    auto &table = *page->findChild<QTableView *>();
    if (!QTest::qWaitFor([&table] { return showsIcons(table); }))
        qFatal("the icons do not come");
    table.viewport()->repaint();
    return work() - begin;
}

/// A bare table with everything in memory already.
double peerWork(const QIcon &icon)
{
    const double begin = work();
    QWidget window;
    auto *table = new QTableView;
    (new QVBoxLayout(&window))->addWidget(table);
    QStandardItemModel model;
    for (int app = 0; app < apps; ++app)
        model.appendRow({new QStandardItem(icon, {}), new QStandardItem(QString::number(app)),
                         new QStandardItem(textOf(app)), new QStandardItem(u"Tool"_s)});
    table->setIconSize({32, 32});
    table->verticalHeader()->setDefaultSectionSize(44);
    table->setModel(&model);
    window.resize(820, 600);
    window.show();
    QTest::qWait(20);
    table->viewport()->repaint();
    return work() - begin;
}

bool appears(std::unique_ptr<AboutViewController> &page)
{
    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::red);
    std::vector<double> ours, ratios;
    for (int i = 0; i < rounds; ++i) {
        ours.push_back(pageWork(page));
        ratios.push_back(ours.back() / peerWork(QIcon(pixmap)));
    }
    const bool isQuick = Row{.work = "1,000 applications, interface thread",
                             .figure = median(std::move(ours)),
                             .limit = 200,
                             .unit = "ms"}
                             .print();
    return Row{.work = "1,000 applications, against a bare table",
               .figure = median(std::move(ratios)),
               .limit = 3}
               .print()
        && isQuick;
}

// A pause is the time for which one turn of the wheel blocks the interface thread: the scrolling,
// the repaint, and the events that arrive meanwhile.
bool scrolls(AboutViewController &page)
{
    auto &table = *page.findChild<QTableView *>();
    QScrollBar &bar = *table.verticalScrollBar();
    const double before = memory();
    double longest = 0;
    for (int position = 0; position < bar.maximum(); position += step) {
        QElapsedTimer clock;
        clock.start();
        bar.setValue(position);
        table.viewport()->repaint();
        longest = std::max(longest, double(clock.nsecsElapsed()) / 1e6);
        const bool isShown = QTest::qWaitFor([&] {
            clock.start();
            QCoreApplication::processEvents();
            longest = std::max(longest, double(clock.nsecsElapsed()) / 1e6);
            return showsIcons(table);
        });
        if (!isShown)
            qFatal("the icons do not come");
    }
    const bool isSmooth = Row{.work = "1,000 applications, longest pause scrolling",
                              .figure = longest,
                              .limit = 50,
                              .unit = "ms"}
                              .print();
    return Row{.work = "1,000 applications, memory for icons",
               .figure = memory() - before,
               .limit = 30,
               .unit = "MB"}
               .print()
        && isSmooth;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QTranslator texts;
    if (texts.load(u":/localisation/toolvane_en.qm"_s))
        QCoreApplication::installTranslator(&texts);
    Theme::install();
    if (!MiscTool::getUserHome().startsWith(qEnvironmentVariable("TOOLVANE_TEST_SANDBOX", u"?"_s)))
        qFatal("run this through tests/support/isolated");
    writeList();
    std::unique_ptr<AboutViewController> page;
    const bool isQuick = appears(page);
    return scrolls(*page) && isQuick ? 0 : 1;
}
