#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

/// What a page says about its last run in the place of the progress, without a message box: that
/// it was stopped, or that what it made has no place yet, with what the user can do about that.
/// Hidden while there is nothing to say; the place is the page's, which keeps its room.
class RunLine : public QWidget
{
    Q_OBJECT

public:
    explicit RunLine(QWidget *parent = nullptr);

    void say(const QString &text); ///< Plain text. A screen reader is told as well.
    /// The same, with buttons for a finished file that has no place yet.
    void offerPlace(const QString &text, const QString &file);
    void withdraw();
    void putInTabOrder(QWidget *before, QWidget *after); ///< The buttons: between these two.

Q_SIGNALS:
    void placeWanted(); ///< The user wants to choose another place.
    void discardWanted();

private:
    QLabel *m_text;
    QPushButton *m_place;
    QPushButton *m_discard;
};
