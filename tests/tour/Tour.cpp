#include "Tour.h"

#include "Application.h"
#include "HoverTableAppDelegate.h"
#include "HoverTableRowView.h"
#include "HoverTableView.h"
#include "PageControls.h"

#include <QComboBox>
#include <QProcess>
#include <QScreen>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{

void print(const QString &line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

} // namespace

Tour::Tour(Application &application, const QDir &pictures)
    : m_application(application), m_pictures(pictures), m_samples(QDir::temp())
{
    m_samples.mkpath(u"samples"_s);
    m_samples.cd(u"samples"_s);
}

void Tour::step(const QString &what)
{
    print(u"• "_s + what);
}

void Tour::check(bool ok, const QString &what)
{
    ++m_checks;
    m_failures += ok ? 0 : 1;
    print((ok ? u"  ok      "_s : u"  FAILED  "_s) + what);
}

void Tour::await(const QString &what, const std::function<bool()> &condition, int milliseconds)
{
    check(QTest::qWaitFor(condition, milliseconds), what);
}

void Tour::picture(const QString &name)
{
    QWidget &window = m_application.window();
    QTest::qWait(150); // the server needs a moment to draw what was asked for
    const QPixmap screen = window.screen()->grabWindow(0);
    const QString path = m_pictures.filePath(name + u".png"_s);
    check(screen.copy(window.frameGeometry()).save(path), u"picture "_s + path);
}

QWidget *Tour::openTool(const QString &pageClass)
{
    const HoverTableAppDelegate &tools = m_application.tools();
    int row = 0;
    while (tools.viewItem(row)->objectName() != pageClass)
        ++row;
    step(u"open "_s + tools.index(row).data().toString());
    QTest::mouseClick(m_application.window().tableView().rowView(row), Qt::LeftButton);
    check(tools.viewItem(row)->isVisible(), u"the page is shown"_s);
    return tools.viewItem(row);
}

void Tour::type(QWidget *page, const char *field, const QString &text)
{
    auto &edit = PageControls::control<QLineEdit>(*page, field);
    edit.setFocus();
    edit.selectAll();
    QTest::keyClicks(&edit, text);
    check(edit.text() == text, QLatin1String(field) + u" reads "_s + text);
}

void Tour::choose(QWidget *page, const char *popUp, int index)
{
    auto &box = PageControls::control<QComboBox>(*page, popUp);
    box.setCurrentIndex(index);
    step(u"choose "_s + box.currentText());
}

void Tour::press(QWidget *page, const char *button)
{
    auto &found = PageControls::control<QPushButton>(*page, button);
    check(found.isEnabled(), QLatin1String(button) + u" can be pressed"_s);
    step(u"press "_s + found.text());
    // The press may open a message box with a loop of its own; the tour goes on meanwhile.
    QMetaObject::invokeMethod(&found, &QAbstractButton::click, Qt::QueuedConnection);
}

void Tour::expectMessage(const QString &pictureName)
{
    m_boxes.texts.clear();
    m_boxes.whileShown = [this, pictureName] { picture(pictureName); };
}

void Tour::awaitMessage(const QString &text)
{
    await(u"a message comes up"_s, [this] { return !m_boxes.texts.isEmpty(); });
    check(m_boxes.texts.value(0) == text, u"the message says: "_s + m_boxes.texts.value(0));
}

void Tour::pressUntilMessage(QWidget *page, const char *button, const QString &pictureName,
                             const QString &text)
{
    expectMessage(pictureName);
    press(page, button);
    awaitMessage(text);
}

QFileDialog *Tour::awaitChooser(QWidget *page, const QString &name)
{
    QFileDialog *chooser = nullptr;
    await(name + u" comes up"_s, [&] {
        chooser = page->window()->findChild<QFileDialog *>(name);
        return chooser && chooser->isVisible();
    });
    return chooser;
}

int Tour::witness(const QString &program, const QStringList &arguments, QByteArray *output)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.waitForFinished(-1);
    if (output)
        *output = process.readAll();
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QString Tour::summary() const
{
    return u"%1 checks, %2 failed"_s.arg(m_checks).arg(m_failures);
}
