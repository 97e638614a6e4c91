#pragma once

#include <QLabel>

/// A sentence that explains and may stand back; the theme gives this class its colour.
class HintLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;
};
