#pragma once

#include "PseudoTexts.h"

#include <QStringList>
#include <QWidget>

#include <functional>

class Application;

/// Everything that the program can show, for tests that look at all of it.
namespace Scenes
{

/// The shipped languages and "pseudo".
QStringList languages();

/// Puts a language in use, the direction of its writing included, for as long as it lives.
class Language
{
public:
    explicit Language(const QString &name);
    ~Language();
    Language(const Language &) = delete;
    Language &operator=(const Language &) = delete;

private:
    QTranslator m_table;
    PseudoTexts m_pseudo;
};

/// Call it before the first test. What the scenes show creates a record database.
void prepare();

/// Class and name of a widget, for a message.
QString described(const QWidget &widget);

/// The visible widgets of a window, without the window itself.
QList<QWidget *> shownIn(const QWidget &window);

using Look = std::function<void(const QString &scene, QWidget &window)>;

/// Shows each page, window, sheet and message box of a started application in turn and calls back
/// while it is shown.
void visit(Application &application, const Look &look);

/// Waits until pending layouts are done.
void settle();

} // namespace Scenes
