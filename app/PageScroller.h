#pragma once

#include <QScrollArea>

/// Shows one page as large as there is room, and lets it scroll only where it needs more: with
/// large fonts, long texts, or a small window. Before that its margins at top and bottom give way.
/// The control that gets the keyboard is brought into view.
class PageScroller : public QScrollArea
{
    Q_OBJECT

public:
    /// Takes the page over; its size is the scroller's from then on.
    explicit PageScroller(QWidget *page, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// What the page takes at least at this width, word-wrapped texts included.
    QSize neededAt(int width) const;
    /// Halves the margins where the page needs it.
    void chooseMargins(QSize room);
    void fit();

    bool m_isTight = false;
    int m_savedByTightness = 0;
};
