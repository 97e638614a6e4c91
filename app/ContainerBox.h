#pragma once

#include <QScrollArea>
#include <QStackedWidget>

/// The main window's page area: a frame with one replaceable content view. A view that is replaced
/// stays alive, hidden, with everything that was typed into it. A view that does not fit can be
/// scrolled, and its mnemonics are kept unique. Interface thread only.
class ContainerBox : public QStackedWidget
{
    Q_OBJECT

public:
    using QStackedWidget::QStackedWidget;

    /// The view that is shown, not the scroller around it; null without one.
    QWidget *contentView() const;
    /// Shows the view and owns it from now on. It may be one that was shown before.
    void setContentView(QWidget *view);
};

/// Gives one page all the room there is, and lets it scroll only if it needs more: with large
/// fonts, long texts, or a small window. Before it scrolls, its top and bottom margins are halved.
/// The control that gets the keyboard focus is scrolled into view.
class PageScroller : public QScrollArea
{
    Q_OBJECT

public:
    /// Owns the page from now on and sets its size.
    explicit PageScroller(QWidget *page, QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    /// The page's minimum size at this width, in pixels, word-wrapped texts included.
    QSize neededAt(int width) const;
    /// Halves the margins if the page needs it, or restores them.
    void chooseMargins(QSize room);
    void fit();

    bool m_isTight = false; ///< The margins are halved.
    int m_savedByTightness = 0; ///< Pixels of height that halving the margins gains.
};
