#pragma once

#include <QLabel>

/// A short title inside a page or bar; the theme gives this class its font.
class SectionTitle : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
};
