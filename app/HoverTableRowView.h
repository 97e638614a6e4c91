#pragma once

#include "ElidedLabel.h"

class IconView;
class QGradient;

/// The small dot at the end of a sidebar row whose page is running something.
class RunningMark : public QWidget
{
    Q_OBJECT

public:
    /// Says what it means in its tool tip, and to screen readers.
    explicit RunningMark(QWidget *parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// One row of the sidebar: icon, name, a band of light while the pointer is over it, a rounded
/// selection and a separator line at its bottom. The pointer is followed whether or not the window
/// is active.
class HoverTableRowView : public QWidget
{
    Q_OBJECT

public:
    /// None draws no selection at all.
    enum class SelectionHighlightStyle { None = -1, Regular = 0 };

    /// Takes the name of one of the application's own images, and the text to show.
    HoverTableRowView(const QString &imageName, const QString &name, QWidget *parent = nullptr);

    /// The pointer is over the row, whether or not the window is active.
    bool mouseInside() const { return m_mouseInside; }
    void setMouseInside(bool inside);

    bool isSelected() const { return m_selected; }
    void setSelected(bool selected);
    void setSelectionHighlightStyle(SelectionHighlightStyle style);

    /// For the row that the keyboard is at; the pointer needs no ring.
    void setFocusRing(bool shown);

    /// Shows the dot: the page of this row is running something.
    void setRunning(bool running);

    /// The line at the bottom of the row, one pixel high.
    QRectF separatorRect() const;

    /// The one gradient of all separator lines, made on first use: it fades in from the left and
    /// out to the right of whatever it fills.
    static const QGradient &separatorGradient();

    /// The name; owned by the row.
    ElidedLabel *textField() const { return m_textField; }

protected:
    void changeEvent(QEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void drawBackgroundInRect(QPainter &painter) const;
    void drawSelectionInRect(QPainter &painter) const;
    void drawSeparatorInRect(QPainter &painter) const;
    void drawFocusRing(QPainter &painter) const;
    void drawInset(QPainter &painter, double inset) const;

    IconView *m_imageView;
    ElidedLabel *m_textField;
    RunningMark *m_runningMark;
    SelectionHighlightStyle m_highlightStyle = SelectionHighlightStyle::Regular;
    bool m_mouseInside = false;
    bool m_selected = false;
    bool m_focusRing = false;
};
