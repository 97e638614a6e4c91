#pragma once

#include <QLabel>

// Labels that the theme recognises by their class. Interface thread only.

/// The title at the head of a page; the theme gives this class its font.
class PageTitle : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
};

/// A short title inside a page or bar; the theme gives this class its font.
class SectionTitle : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
};

/// A sentence that explains and may stay in the background; the theme gives this class its colour.
class HintLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
};
