#include "PathField.h"

#include "Suffix.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>

using namespace Qt::StringLiterals;

// A tool tip that looks like markup would be shown as such.
static QString asToolTip(const QString &path)
{
    return Qt::mightBeRichText(path) ? u"<qt>"_s + path.toHtmlEscaped() + u"</qt>"_s : path;
}

// Empty unless it is exactly one local item.
static QString droppedPath(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 && urls.first().isLocalFile()
        ? QDir::cleanPath(urls.first().toLocalFile())
        : QString();
}

PathField::PathField(QWidget *parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString &path) { setToolTip(asToolTip(path)); });
}

bool PathField::takesPath(const QString &path) const
{
    if (path.isEmpty() || isReadOnly() || !isEnabled())
        return false;
    const QFileInfo item(path);
    if (m_kind == Kind::Folder)
        return item.isDir();
    return item.isFile() && (m_suffixes.isEmpty() || endsInSuffix(path, m_suffixes));
}

// The source keeps its file whatever action it proposed.
void PathField::considerDrag(QDragMoveEvent *event) const
{
    if (takesPath(droppedPath(event->mimeData()))) {
        event->setDropAction(Qt::CopyAction);
        event->accept();
    } else {
        event->ignore();
    }
}

void PathField::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        considerDrag(event);
    else
        QLineEdit::dragEnterEvent(event);
}

void PathField::dragMoveEvent(QDragMoveEvent *event)
{
    if (event->mimeData()->hasUrls())
        considerDrag(event);
    else
        QLineEdit::dragMoveEvent(event);
}

void PathField::dropEvent(QDropEvent *event)
{
    if (!event->mimeData()->hasUrls()) {
        QLineEdit::dropEvent(event);
        return;
    }
    const QString path = droppedPath(event->mimeData());
    if (!takesPath(path)) {
        event->ignore();
        return;
    }
    setText(path);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT pathDropped(path);
}
