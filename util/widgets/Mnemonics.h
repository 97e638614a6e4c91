#pragma once

#include "MnemonicChoice.h"

#include <QHash>
#include <QObject>

class QWidget;

/// Keeps the mnemonics of a page or dialog without clashes in every language: each button, check
/// box, label with a buddy, and box that names a field gets a letter of its own that the window's
/// menu bar does not use. It looks when the page is shown and whenever its layout changes, so a
/// page may set texts at run time as it likes; a control whose text gets longer keeps its letter. A
/// page in a tab takes from what the controls around the tabs leave. Interface thread only.
class Mnemonics : public QObject
{
    Q_OBJECT

public:
    /// From now on, for as long as the widget lives. A second call for it does nothing.
    static void keepUnique(QWidget *page);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    /// A text as the program set it, with the letter that it had before, and as it was marked.
    struct Marked {
        QString wanted;
        QString shown;
    };
    using Texts = QHash<const QWidget *, Marked>;

    explicit Mnemonics(QWidget *page);
    void assign();
    void assignIn(const QWidget &part, QSet<QChar> taken, Texts &texts) const;

    QWidget *m_page;
    Texts m_texts;
};
