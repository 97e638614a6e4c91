#pragma once

#include <QMessageBox>

#include <functional>

/// A question that a window asks before something is lost. It is a sheet on the window: the rest of
/// the program goes on, and nothing happens unless the user agrees.
struct Question {
    const char *name; ///< Object name. A window asks a question once at a time.
    QString text;
    QString consequence;
    QString agree; ///< The button that does it.
    QString decline; ///< The button that does not: the default, and what Escape presses.
};

/// Shows the question; null if the window shows it already. `agreed` is not called once the window
/// is gone. Interface thread only.
QMessageBox *ask(QWidget *window, const Question &question, std::function<void()> agreed);
