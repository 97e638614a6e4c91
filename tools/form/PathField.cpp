#include "PathField.h"

#include "FileNames.h"
#include "PathAdvice.h"
#include "PlainToolTip.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QStyleOptionFrame>
#include <QSysInfo>
#include <QUrl>

using namespace Qt::StringLiterals;

// Some programs name this machine in the address of a file of its own.
static bool isOfThisMachine(const QUrl &url)
{
    const QString host = url.host();
    return url.isLocalFile()
        && (host.isEmpty() || host == "localhost"_L1
            || host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0);
}

// Empty unless it is exactly one local item.
static QString droppedPath(const QMimeData *data)
{
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 && isOfThisMachine(urls.first()) ? QDir::cleanPath(urls.first().path())
                                                             : QString();
}

PathField::PathField(QWidget *parent) : QLineEdit(parent)
{
    connect(this, &QLineEdit::textChanged, this,
            [this](const QString &path) { setToolTip(plainToolTip(path)); });
    connect(this, &QLineEdit::editingFinished, this, &PathField::expandHome);
    takeDropsOf(*this);
}

void PathField::expandHome()
{
    if (const QString path = withHomeFolder(text()); path != text())
        setText(path);
}

void PathField::expandHomeIn(const QWidget &page)
{
    const auto fields = page.findChildren<PathField *>();
    for (PathField *field : fields)
        field->expandHome();
}

bool PathField::takesPath(const QString &path) const
{
    if (path.isEmpty() || isReadOnly() || !isEnabled())
        return false;
    const QFileInfo item(path);
    if (item.isDir())
        return m_kind != Kind::File;
    return m_kind != Kind::Folder && item.isFile()
        && (m_suffixes.isEmpty() || endsInSuffix(path, m_suffixes));
}

void PathField::setIsDropTarget(bool isTarget)
{
    m_isDropTarget = isTarget;
    update();
}

void PathField::initStyleOption(QStyleOptionFrame *option) const
{
    QLineEdit::initStyleOption(option);
    if (m_isDropTarget)
        option->state |= QStyle::State_HasFocus;
}

// The source keeps its file whatever action it proposed.
void PathField::considerDrag(QDragMoveEvent *event)
{
    setIsDropTarget(takesPath(droppedPath(event->mimeData())));
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(m_isDropTarget);
}

void PathField::takeDrop(QDropEvent *event)
{
    setIsDropTarget(false);
    QString path = droppedPath(event->mimeData());
    if (!takesPath(path)) {
        event->ignore();
        return;
    }
    if (m_kind == Kind::NewFile && QFileInfo(path).isDir())
        path = proposedFile(path, m_source ? m_source->text() : QString(), m_suffixes.value(0));
    setText(path);
    event->setDropAction(Qt::CopyAction);
    event->accept();
    Q_EMIT pathDropped(path);
}

void PathField::takeDropsOf(QWidget &widget)
{
    widget.setAcceptDrops(true);
    widget.installEventFilter(this);
}

// What is dragged but is not an address, such as text, stays the watched widget's.
bool PathField::eventFilter(QObject *, QEvent *event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::DragLeave)
        setIsDropTarget(false);
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return false;
    auto *drop = static_cast<QDropEvent *>(event); // what all three are
    if (!drop->mimeData()->hasUrls())
        return false;
    if (type == QEvent::Drop)
        takeDrop(drop);
    else
        considerDrag(static_cast<QDragMoveEvent *>(drop));
    return true;
}
