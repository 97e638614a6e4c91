#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QStringList>

/// A line for one path. It takes a dropped local file or folder of its kind (a read-only or
/// disabled field refuses, and so does every field for more than one item), looks focused while
/// such an item is dragged over it, and shows the whole path as its tool tip. Its size never
/// depends on its text.
class PathField : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(Kind kind MEMBER m_kind)
    Q_PROPERTY(QStringList suffixes MEMBER m_suffixes)

public:
    enum class Kind {
        Folder,
        File, ///< An existing one.
        NewFile, ///< One to write: a folder that is dropped gets a new file's path in it.
    };
    Q_ENUM(Kind)

    explicit PathField(QWidget *parent = nullptr);

    void setKind(Kind kind) { m_kind = kind; } ///< Folder unless said otherwise.
    /// For files: what a dropped file's name must end in, without the dot, in any case ("zip").
    /// None: any file. The first one is what a new file's name ends in.
    void setSuffixes(const QStringList &suffixes) { m_suffixes = suffixes; }
    /// The field with the path that a new file is named after.
    void setSource(const QLineEdit &source) { m_source = &source; }

    /// Puts the home folder in place of a leading "~/" in every path field of a page. A field does
    /// it itself when it is left; a run may start before.
    static void expandHomeIn(const QWidget &page);

    /// Items that are dragged over the widget are taken as if they were dragged over this field. A
    /// widget in it that takes drops itself, such as another path field, comes first.
    void takeDropsOf(QWidget &widget);

Q_SIGNALS:
    /// After the text was set to the path of a dropped item, or of a new file in it.
    void pathDropped(const QString &path);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override; ///< Watches itself, too.
    void initStyleOption(QStyleOptionFrame *option) const override;

private:
    void expandHome();
    bool takesPath(const QString &path) const;
    void considerDrag(QDragMoveEvent *event);
    void takeDrop(QDropEvent *event);
    void setIsDropTarget(bool isTarget);

    Kind m_kind = Kind::Folder;
    QStringList m_suffixes;
    QPointer<const QLineEdit> m_source;
    bool m_isDropTarget = false; ///< What would be dropped now would be taken.
};
