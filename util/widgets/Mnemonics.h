#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QString>

class QWidget;

/// Keeps the mnemonics of a page or dialog apart in every language: each button, check box, label
/// with a buddy, and box that names a field gets one of its own that the window's menu bar does not
/// use. They are given out when the page is shown, and to a control whose text is set while the
/// page is shown; the others keep theirs. A page in a tab takes from what the controls around the
/// tabs leave. Interface thread only.
class Mnemonics : public QObject
{
    Q_OBJECT

public:
    /// From now on, for as long as the widget lives. A second call for it does nothing.
    static void keepUnique(QWidget *page);

    // Texts, in which "&" stands before the mnemonic, and "&&" for the character itself. Any
    // thread.

    /// The text's mnemonic in upper case; null if it has none.
    static QChar of(const QString &text);
    /// The text without its mark. "選択(&S)…" loses the brackets, too.
    static QString withoutMark(const QString &text);
    /// The text marked with a mnemonic that is not taken (upper case): the one that it is marked
    /// with, else the preferred one, else the first free one of its own, beginnings of words first.
    /// If no key types one of its characters directly, or all are taken, it gets a Latin one in
    /// brackets at its end. Without a mark if even those are taken.
    static QString marked(const QString &text, const QSet<QChar> &taken, QChar preferred = {});

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// A control and the text that it was given here.
    struct Marked {
        QPointer<QWidget> control; ///< Null once it is gone.
        const char *property; ///< The one that holds the text.
        QString text;
    };

    explicit Mnemonics(QWidget *page);
    bool hasNewText() const; ///< Whether a text was set since they were given out.
    void assign();
    /// For all that is seen together with the part; then for each page of tabs in it, on its own.
    /// Appends what was given out.
    void assignIn(const QWidget &part, QSet<QChar> taken, QList<Marked> &all) const;
    /// Empty if nothing was given to the control yet.
    QString textGivenTo(const QWidget *control) const;

    QWidget *m_page;
    QList<Marked> m_marked;
};
