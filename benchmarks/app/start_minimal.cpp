// The smallest Qt program with a window, for comparison.

#include "FirstPaint.h"

#include <QApplication>
#include <QLabel>

int main(int argc, char *argv[])
{
    QApplication qt(argc, argv);
    QWidget window;
    window.resize(1040, 680);
    QLabel label(QStringLiteral("Toolvane"), &window);
    const FirstPaint end(window);
    window.show();
    return QApplication::exec();
}
