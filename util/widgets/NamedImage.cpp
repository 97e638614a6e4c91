#include "NamedImage.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPicture>
#include <QPixmapCache>
#include <QWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

// Up to this size the plainer version of a picture is used, see stemFor().
constexpr int maxSmallSize = 32;
constexpr float disabledPictureOpacity = 0.4F;

constexpr auto symbols = ":/images/symbols/"_L1;
constexpr auto pictures = ":/images/pictures/"_L1;

bool hasRecording(const QString &stem)
{
    return QFile::exists(stem + ".pic"_L1);
}

// The path of the image without its suffix; empty if there is none.
QString stemOf(const QString &name)
{
    const bool wellFormed = std::ranges::all_of(name, [](QChar c) {
        return c == u'-' || c == u'_' || (c.unicode() < 128 && c.isLetterOrNumber());
    });
    for (const QLatin1String folder : {symbols, pictures})
        if (wellFormed && hasRecording(folder + name))
            return folder + name;
    return {};
}

// What the first paint shows was drawn when the program was built; false for other sizes.
bool drawPixels(QPainter &painter, const QString &stem, const QSize &size)
{
    QFile file(stem + u"-%1.argb"_s.arg(size.width()));
    if (size.width() != size.height() || !file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray bytes = file.readAll();
    const QImage image(reinterpret_cast<const uchar *>(bytes.constData()), size.width(),
                       size.height(), QImage::Format_ARGB32_Premultiplied);
    if (bytes.size() != image.sizeInBytes())
        return false;
    painter.drawImage(0, 0, image);
    return true;
}

void playRecording(QPainter &painter, const QString &stem, const QSize &size)
{
    QPicture picture;
    picture.load(stem + ".pic"_L1);
    const QRectF box = picture.boundingRect();
    if (box.isEmpty())
        return;
    const qreal side = std::min(size.width() / box.width(), size.height() / box.height());
    painter.translate(QRectF({}, size).center());
    painter.scale(side, side);
    painter.translate(-box.center());
    painter.drawPicture(0, 0, picture);
    painter.resetTransform();
}

QPalette::ColorGroup groupOf(QIcon::Mode mode)
{
    return mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
}

// The widget's own palette counts, not the application's: the sidebar has one of its own.
QColor textColor(const QPaintDevice *device, QIcon::Mode mode)
{
    if (device && device->devType() == QInternal::Widget) {
        const auto *widget = static_cast<const QWidget *>(device);
        return widget->palette().color(groupOf(mode),
                                       mode == QIcon::Selected ? QPalette::HighlightedText
                                                               : widget->foregroundRole());
    }
    return QApplication::palette().color(
        groupOf(mode), mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText);
}

class NamedImageEngine : public QIconEngine
{
public:
    NamedImageEngine(QString name, QString stem) : m_name(std::move(name)), m_stem(std::move(stem))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        const qreal scale = painter->device()->devicePixelRatio();
        const QColor color = textColor(painter->device(), mode);
        painter->drawPixmap(rect, rendered((QSizeF(rect.size()) * scale).toSize(), mode, color));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        return rendered(size, mode, textColor(nullptr, mode));
    }

    // A window's icon is drawn in all of these before the window shows, so they are few.
    QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override
    {
        return {QSize(32, 32), QSize(64, 64)};
    }

    QString key() const override { return u"toolvane"_s; }
    QString iconName() override { return m_name; }
    QIconEngine *clone() const override { return new NamedImageEngine(*this); }

private:
    bool isSymbol() const { return m_stem.startsWith(symbols); }

    QPixmap rendered(const QSize &size, QIcon::Mode mode, const QColor &color) const
    {
        const QString key = u"toolvane-image:%1:%2x%3:%4:%5"_s.arg(
            m_name, QString::number(size.width()), QString::number(size.height()),
            isSymbol() ? color.name(QColor::HexArgb) : QString(),
            QString::number(mode == QIcon::Disabled));
        QPixmap pixmap;
        if (!QPixmapCache::find(key, &pixmap)) {
            pixmap = drawn(size, mode, color);
            QPixmapCache::insert(key, pixmap);
        }
        return pixmap;
    }

    QPixmap drawn(const QSize &size, QIcon::Mode mode, const QColor &color) const
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        if (size.isEmpty())
            return pixmap;
        QPainter painter(&pixmap);
        if (const QString stem = stemFor(size); !drawPixels(painter, stem, size))
            playRecording(painter, stem, size);
        if (isSymbol()) {
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(QRect({}, size), color);
        } else if (mode == QIcon::Disabled) {
            painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
            painter.fillRect(QRect({}, size), QColor::fromRgbF(0, 0, 0, disabledPictureOpacity));
        }
        return pixmap;
    }

    // A picture in full detail has a plainer version for the smallest sizes.
    QString stemFor(const QSize &size) const
    {
        const QString small = m_stem + "-small"_L1;
        const bool isSmall = std::max(size.width(), size.height()) <= maxSmallSize;
        return isSmall && hasRecording(small) ? small : m_stem;
    }

    QString m_name;
    QString m_stem;
};

} // namespace

bool hasNamedImage(const QString &name)
{
    return !stemOf(name).isEmpty();
}

QIcon namedImage(const QString &name)
{
    const QString stem = stemOf(name);
    return stem.isEmpty() ? QIcon() : QIcon(new NamedImageEngine(name, stem));
}
