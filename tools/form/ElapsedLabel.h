#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QTimer>

/// How long a run has lasted, as elapsedText(). Visible while running only; its room is kept. It
/// counts on while its page is not the shown one, but repaints only when shown.
class ElapsedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElapsedLabel(QWidget *parent = nullptr);

    QSize sizeHint() const override; ///< Wide enough for ten hours, whatever it shows now.
    QSize minimumSizeHint() const override { return sizeHint(); }

    /// The run has ended: its time no longer changes, although the page looks busy until the user
    /// has seen the result.
    void hold();

public Q_SLOTS:
    void setRunning(bool running); ///< Starting anew begins at 0:00.

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    void updateText();

    QElapsedTimer m_started;
    QTimer m_everySecond;
};
