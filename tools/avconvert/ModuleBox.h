#pragma once

#include <QGroupBox>
#include <QStyleOptionGroupBox>

/// The frame around a whole page. Its title names the page to a screen reader; the page's header
/// shows the same words, so this box draws neither title nor frame.
class ModuleBox : public QGroupBox
{
    Q_OBJECT

public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent *) override { }

    void initStyleOption(QStyleOptionGroupBox *option) const override
    {
        QGroupBox::initStyleOption(option);
        option->text.clear(); // takes no room either
    }
};
