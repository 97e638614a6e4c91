#pragma once

#include <QWidget>

class ElidedLabel;
class IconView;
class RunningMark;

/// One row of the sidebar: icon, name, a band of light while the pointer is over it, a rounded
/// selection and a separator line at its bottom. The pointer is followed whether or not the window
/// is active.
class HoverTableRowView : public QWidget
{
    Q_OBJECT

public:
    enum class SelectionHighlightStyle { None = -1, Regular = 0 };

    HoverTableRowView(const QString &imageName, const QString &name, QWidget *parent = nullptr);

    bool mouseInside() const { return m_mouseInside; }
    /// Draws the row anew only when the value changes.
    void setMouseInside(bool inside);

    bool isSelected() const { return m_selected; }
    void setSelected(bool selected);
    void setSelectionHighlightStyle(SelectionHighlightStyle style);

    /// Shows that the keyboard is at this row.
    void setFocusRing(bool shown);

    /// Says on the row that its page is at work.
    void setRunning(bool running);

    /// The line at the bottom of the row, one pixel high.
    QRectF separatorRect() const;

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

    IconView *m_imageView;
    ElidedLabel *m_textField;
    RunningMark *m_runningMark;
    SelectionHighlightStyle m_highlightStyle = SelectionHighlightStyle::Regular;
    bool m_mouseInside = false;
    bool m_selected = false;
    bool m_focusRing = false;
};
