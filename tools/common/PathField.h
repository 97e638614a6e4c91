#pragma once

#include <QLineEdit>
#include <QStringList>

/// A line for one path. It takes a dropped local file or folder of its kind (a read-only or
/// disabled field refuses), and shows the whole path as its tool tip. Its size never depends on
/// its text.
class PathField : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(Kind kind MEMBER m_kind)
    Q_PROPERTY(QStringList suffixes MEMBER m_suffixes)

public:
    enum class Kind { Folder, File };
    Q_ENUM(Kind)

    explicit PathField(QWidget *parent = nullptr);

    void setKind(Kind kind) { m_kind = kind; } ///< Folder unless said otherwise.
    /// For files: what a dropped file's name must end in, without the dot, in any case ("zip").
    /// None: any file.
    void setSuffixes(const QStringList &suffixes) { m_suffixes = suffixes; }

Q_SIGNALS:
    /// After the text was set to the path of a dropped item.
    void pathDropped(const QString &path);

protected:
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    bool takesPath(const QString &path) const;
    void considerDrag(QDragMoveEvent *event) const;

    Kind m_kind = Kind::Folder;
    QStringList m_suffixes;
};
