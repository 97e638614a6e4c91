#include "Stops.h"
#include "Tour.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

void visitSpeech(Tour &tour)
{
    const QDir samples = tour.samples();
    const QString sound = samples.filePath(u"greeting.aiff"_s);
    QWidget *page = tour.openTool(u"SynthesisViewController"_s);
    page->findChild<QPlainTextEdit *>(u"textField"_s)
        ->setPlainText(u"Good morning. Here is everything that you asked for."_s);
    tour.picture(u"speech-filled"_s);
    tour.press(page, "saveButton");
    QFileDialog *chooser = tour.awaitChooser(page, u"saveChooser"_s);
    tour.picture(u"speech-saving"_s);
    chooser->findChild<QLineEdit *>(u"fileNameEdit"_s)->setText(sound);
    tour.expectMessage(u"speech-done"_s);
    QMetaObject::invokeMethod(chooser, "accept", Qt::QueuedConnection);
    tour.awaitMessage(qtTrId("SaveSuc"));
    QByteArray type;
    tour.witness(u"soxi"_s, {u"-t"_s, sound}, &type);
    tour.check(type.trimmed() == "aiff", u"soxi calls it AIFF"_s);
}
