#pragma once

class BusyIndicator;
class QPushButton;
class QWidget;

/// How a page looks and behaves as a whole, for what the pages do alike. Interface thread only.
namespace PageStatus
{

/// Says in one message box why the form cannot run; both texts are given by their keys. Always
/// false, so that a page's check can end with it. The page may be gone afterwards.
bool refuse(const char *messageKey, const char *informativeKey = nullptr);

/// Hidden and still while the page is idle, shown and moving while it works.
void setIdle(BusyIndicator &indicator, bool idle);

/// So that nothing on the page moves when the widget comes or goes. Call it after any other change
/// of the widget's size policy.
void keepSpaceWhenHidden(QWidget &widget);

/// Return presses the button from every control of the page that has no use of its own for the
/// key, another push button excepted, which is pressed itself; a disabled or hidden button is not
/// pressed. The default button of a dialog does the same, but a page is not a dialog. A button that
/// is disabled while it has the focus gets it back afterwards, unless the user went elsewhere.
void pressOnReturn(QWidget &page, QPushButton &button);

} // namespace PageStatus
