#include "ui/components/IconProvider.h"

#include <QColor>
#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

namespace loom
{

namespace
{

constexpr int gridSize = 20;
// A window shows some fifty icons in two or three colours; at 20 pixels each takes 1.6 KB.
constexpr qsizetype cacheBytes = qsizetype{512} * 1024;

} // namespace

IconProvider::IconProvider()
    : QQuickImageProvider(Image)
    , m_drawn(cacheBytes)
{
}

QImage IconProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize)
{
    const QSize wanted(requestedSize.width() > 0 ? requestedSize.width() : gridSize,
                       requestedSize.height() > 0 ? requestedSize.height() : gridSize);
    if (size)
        *size = wanted;

    const QString key = QStringLiteral("%1@%2x%3").arg(id).arg(wanted.width()).arg(wanted.height());
    const QMutexLocker locker(&m_mutex);
    if (const QImage* drawn = m_drawn.object(key))
        return *drawn;

    const qsizetype slash = id.lastIndexOf(u'/');
    QImage image = draw(id.left(slash), id.mid(slash + 1), wanted);
    m_drawn.insert(key, new QImage(image), image.sizeInBytes());
    return image;
}

QImage IconProvider::draw(const QString& name, const QString& colour, QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);

    const QColor ink(u'#' + colour);
    QFile file(QStringLiteral(":/qt/qml/Loomstreet/Components/icons/%1.svg").arg(name));
    if (name.contains(u'/') || !ink.isValid() || !file.open(QIODevice::ReadOnly)) {
        reportUnknown(name);
        return image;
    }

    QByteArray drawing = file.readAll();
    drawing.replace("currentColor", ink.name(QColor::HexRgb).toLatin1());
    QSvgRenderer renderer(drawing);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    return image;
}

void IconProvider::reportUnknown(const QString& name)
{
    if (m_unknown.contains(name))
        return;
    m_unknown.insert(name);
    qWarning("There is no icon named \"%s\".", qPrintable(name));
}

} // namespace loom
