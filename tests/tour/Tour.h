#pragma once

#include "MessageBoxes.h"

#include <QDir>

class Application;
class QFileDialog;
class QWidget;

/// Drives the real window as a person would and keeps account of it: prints each step and check,
/// saves pictures of the screen, and knows whether all of it worked.
class Tour
{
public:
    Tour(Application &application, const QDir &pictures);

    Application &application() { return m_application; }

    /// A folder of the tour's own for sample data and results; gone with the process's sandbox.
    QDir samples() const { return m_samples; }

    void step(const QString &what);
    void check(bool ok, const QString &what);
    /// Waits until the condition holds, then checks it.
    void await(const QString &what, const std::function<bool()> &condition,
               int milliseconds = 60'000);
    /// Saves the main window, with whatever stands over it, as <name>.png.
    void picture(const QString &name);

    /// Chooses the page of this class in the sidebar.
    QWidget *openTool(const QString &pageClass);
    void type(QWidget *page, const char *field, const QString &text);
    void choose(QWidget *page, const char *popUp, int index);
    void press(QWidget *page, const char *button);
    /// From now on: takes a picture of the message box that comes up. Its OK button is pressed.
    void expectMessage(const QString &pictureName);
    /// Waits until the expected box was answered; checks its text.
    void awaitMessage(const QString &text);
    /// Both, with a button that leads there.
    void pressUntilMessage(QWidget *page, const char *button, const QString &pictureName,
                           const QString &text);
    /// Waits for the chooser that a button has opened.
    QFileDialog *awaitChooser(QWidget *page, const QString &name);
    /// Runs a program that had no part in the work, as a witness. Answers its exit status.
    int witness(const QString &program, const QStringList &arguments, QByteArray *output = nullptr);

    bool succeeded() const { return m_failures == 0 && m_checks > 0; }
    QString summary() const;

private:
    Application &m_application;
    QDir m_pictures;
    QDir m_samples;
    MessageBoxes m_boxes;
    int m_checks = 0;
    int m_failures = 0;
};
