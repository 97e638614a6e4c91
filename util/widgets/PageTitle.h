#pragma once

#include <QLabel>

/// The title at the head of a page; the theme gives this class its font.
class PageTitle : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
};
