#pragma once

#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTranslator>

/// Uses a page as a user does, through its controls. They are found by their object names.
namespace PageControls
{

template <typename Control>
Control &control(const QWidget &page, const char *name)
{
    auto *found = page.findChild<Control *>(QLatin1String(name));
    if (!found)
        qFatal("no control is called %s", name);
    return *found;
}

/// A button that cannot be pressed fails the test.
inline void press(const QWidget &page, const char *button)
{
    auto &pressed = control<QPushButton>(page, button);
    QVERIFY2(pressed.isVisible() && pressed.isEnabled(), button);
    QTest::mouseClick(&pressed, Qt::LeftButton);
}

inline void fill(const QWidget &page, const char *field, const QString &text)
{
    control<QLineEdit>(page, field).setText(text);
}

inline QString text(const QWidget &page, const char *field)
{
    return control<QLineEdit>(page, field).text();
}

/// The names of the enabled ones of these controls.
inline QStringList enabledOf(const QWidget &page, const QStringList &names)
{
    QStringList enabled = names;
    enabled.removeIf([&page](const QString &name) {
        return !control<QWidget>(page, name.toLatin1().constData()).isEnabled();
    });
    return enabled;
}

/// Types a path into the open chooser and confirms it. An empty path cancels.
inline void answerChooser(const QWidget &page, const char *chooser, const QString &path)
{
    auto &sheet = control<QFileDialog>(*page.window(), chooser);
    auto &name = control<QLineEdit>(sheet, "fileNameEdit");
    name.setText(path);
    QTest::keyClick(&name, path.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
    QTRY_VERIFY(!page.window()->findChild<QFileDialog *>());
}

/// A table of texts in which every key has the text "[key]": a text that is shown without
/// brackets was not looked up. In use as long as the object exists.
class MarkedTexts : public QTranslator
{
public:
    MarkedTexts() { QCoreApplication::installTranslator(this); }

    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *key, const char *, int) const override
    {
        const bool isOurs = !context || !*context; // Qt's own texts have a context
        return isOurs ? QLatin1Char('[') + QString::fromUtf8(key) + QLatin1Char(']') : QString();
    }
};

} // namespace PageControls
