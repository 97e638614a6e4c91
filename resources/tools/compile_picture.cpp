// Turns an SVG drawing into a recorded QPicture at build time. The program then plays the recording
// with QtGui alone, crisp at every size, and neither loads the SVG library nor parses XML at start.
// For each SIZE it also draws the pixels themselves, in OUTPUT-SIZE.argb: lines of 32-bit
// premultiplied pixels in the byte order of the machine. What is shown at start need not be drawn
// then.
// usage: compile_picture INPUT.svg OUTPUT [SIZE…]

#include <QCoreApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QPicture>
#include <QSvgRenderer>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

static QPicture recorded(QSvgRenderer &drawing)
{
    QPicture picture;
    picture.setBoundingRect(drawing.viewBox());
    QPainter painter(&picture);
    drawing.render(&painter, drawing.viewBoxF());
    return picture;
}

// Plays the recording, as the program does at other sizes, so that all sizes look alike.
static bool saveAsPixels(const QPicture &picture, int size, const QString &output)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const qreal scale = qreal(size) / picture.boundingRect().width();
    painter.scale(scale, scale);
    painter.drawPicture(0, 0, picture);
    painter.end();
    QFile file(output);
    const auto *bytes = reinterpret_cast<const char *>(image.constBits());
    return !image.isNull() && file.open(QIODevice::WriteOnly)
        && file.write(bytes, image.sizeInBytes()) == image.sizeInBytes() && file.flush();
}

static bool compile(const QString &input, const QString &output, const QStringList &sizes)
{
    QSvgRenderer drawing;
    if (!drawing.load(input))
        return false;
    QPicture picture = recorded(drawing);
    return picture.save(output + ".pic"_L1) && std::ranges::all_of(sizes, [&](const QString &size) {
               return saveAsPixels(picture, size.toInt(), output + u'-' + size + ".argb"_L1);
           });
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 3) {
        std::fputs("usage: compile_picture INPUT.svg OUTPUT [SIZE…]\n", stderr);
        return 64;
    }
    if (!compile(arguments.at(1), arguments.at(2), arguments.sliced(3))) {
        std::fprintf(stderr, "compile_picture: cannot turn %s into %s\n",
                     qPrintable(arguments.at(1)), qPrintable(arguments.at(2)));
        return 1;
    }
    return 0;
}
