#pragma once

#include <QStackedWidget>

/// The main window's page area: a frame with one replaceable content view. A view that is replaced
/// stays alive, hidden, with everything that was typed into it. A view that needs more room than
/// there is scrolls, and its mnemonics are kept apart.
class ContainerBox : public QStackedWidget
{
    Q_OBJECT

public:
    using QStackedWidget::QStackedWidget;

    QWidget *contentView() const;
    void setContentView(QWidget *view);
};
