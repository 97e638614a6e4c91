// Turns an SVG drawing into a recorded QPicture at build time. The program then plays the recording
// with QtGui alone, crisp at every size, and neither loads the SVG library nor parses XML at start.
// usage: compile_picture INPUT.svg OUTPUT.pic

#include <QCoreApplication>
#include <QPainter>
#include <QPicture>
#include <QSvgRenderer>

#include <cstdio>

using namespace Qt::StringLiterals;

static bool compile(const QString &input, const QString &output)
{
    QSvgRenderer drawing;
    if (!drawing.load(input))
        return false;
    QPicture picture;
    picture.setBoundingRect(drawing.viewBox());
    QPainter painter(&picture);
    drawing.render(&painter, drawing.viewBoxF());
    return painter.end() && picture.save(output);
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: compile_picture INPUT.svg OUTPUT.pic\n", stderr);
        return 64;
    }
    if (!compile(arguments.at(1), arguments.at(2))) {
        std::fprintf(stderr, "compile_picture: cannot turn %s into %s\n",
                     qPrintable(arguments.at(1)), qPrintable(arguments.at(2)));
        return 1;
    }
    return 0;
}
