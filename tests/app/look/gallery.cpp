// Shows the look on a made-up window, for whoever changes it: all controls, with the window itself
// on a display, or as a picture.
// usage: look_gallery [--dark] [--rtl] [--disabled] [--large] [FILE.png]

#include "Gallery.h"

#include "Theme.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

constexpr qreal largeFont = 1.3;
constexpr int settleMilliseconds = 400;

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QStringList arguments = application.arguments().mid(1);
    if (arguments.removeAll(u"--large"_s)) {
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * largeFont);
        QApplication::setFont(font);
    }
    if (arguments.removeAll(u"--rtl"_s))
        QApplication::setLayoutDirection(Qt::RightToLeft);
    Theme::install();
    if (arguments.removeAll(u"--dark"_s))
        Theme::apply(Theme::Scheme::Dark);
    Gallery gallery;
    gallery.page()->setEnabled(!arguments.removeAll(u"--disabled"_s));
    gallery.show();
    if (!arguments.isEmpty())
        QTimer::singleShot(settleMilliseconds, &gallery, [&gallery, &arguments] {
            const bool isSaved = gallery.grab().save(arguments.constFirst());
            QApplication::exit(isSaved ? 0 : 1);
        });
    return QApplication::exec();
}
