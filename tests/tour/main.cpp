// Shows the program at work on a machine without a screen: drives the real window through its pages
// on sample data that it makes itself and saves a picture of each state.
// usage: tests/support/isolated toolvane-tour [--dark] [--size 820x560] [--pseudo]
// [--font-scale 1.3] FOLDER

#include "Application.h"
#include "PseudoTexts.h"
#include "Stops.h"
#include "Theme.h"
#include "Tour.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTest>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{

void visitAll(Tour &tour)
{
    visitWelcome(tour);
    visitZip(tour);
    visitUnzip(tour);
    visitImages(tour);
    visitVideo(tour);
    visitSpeech(tour);
    visitUserCache(tour);
    visitUpdate(tour);
    visitAbout(tour);
    visitRecords(tour);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication qt(argc, argv);
    QCommandLineParser options;
    options.addOptions({{u"dark"_s, u"Dark colours."_s},
                        {u"size"_s, u"Size of the window."_s, u"WIDTHxHEIGHT"_s},
                        {u"pseudo"_s, u"Texts that are accented, bracketed and longer."_s},
                        {u"font-scale"_s, u"How much larger the font is."_s, u"FACTOR"_s, u"1"_s}});
    options.addPositionalArgument(u"folder"_s, u"Where the pictures go."_s);
    options.process(qt);
    if (options.positionalArguments().size() != 1
        || qEnvironmentVariableIsEmpty("TOOLVANE_TEST_SANDBOX")) {
        std::fprintf(stderr, "usage: tests/support/isolated %s FOLDER\n", argv[0]);
        return 64;
    }
    Application::prepare();
    PseudoTexts pseudo;
    if (options.isSet(u"pseudo"_s))
        QCoreApplication::installTranslator(&pseudo);
    Theme::install();
    QFont font = QApplication::font();
    font.setPointSizeF(font.pointSizeF() * options.value(u"font-scale"_s).toDouble());
    Theme::setFont(font);
    Theme::apply(options.isSet(u"dark"_s) ? Theme::Scheme::Dark : Theme::Scheme::Light);
    Application application;
    if (const QStringList sides = options.value(u"size"_s).split(u'x'); sides.size() == 2)
        application.window().resize(sides.first().toInt(), sides.last().toInt());
    application.start();
    if (!QTest::qWaitForWindowExposed(&application.window()))
        return 1;

    Tour tour(application, QDir(options.positionalArguments().constFirst()));
    visitAll(tour);
    std::printf("%s\n", qUtf8Printable(tour.summary()));
    return tour.succeeded() ? 0 : 1;
}
