#pragma once

#include <QWidget>

class QAction;

/// The application's icon and name at the start of the toolbar. Says what the action says, but is
/// no button: there is nothing to press.
class ToolbarTitle : public QWidget
{
    Q_OBJECT

public:
    ToolbarTitle(const QAction *item, QWidget *parent);
};
