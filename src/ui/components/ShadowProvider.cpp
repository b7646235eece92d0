#include "ui/components/ShadowProvider.h"

#include <QColor>
#include <QPainter>
#include <QStringList>

#include <algorithm>
#include <vector>

namespace loom
{

namespace
{

constexpr int largestExtent = 128;

/// One pass of a box blur along a row or column of one-byte samples, `stride` bytes apart.
void blurLine(uchar* line, int length, qsizetype stride, int box, std::vector<uchar>& source)
{
    for (int i = 0; i < length; ++i)
        source[static_cast<size_t>(i)] = line[i * stride];
    const auto sample = [&](int i) {
        return i < 0 || i >= length ? 0 : int{source[static_cast<size_t>(i)]};
    };
    const int before = box / 2;
    const int after = box - before - 1;
    int sum = 0;
    for (int i = -before; i < after; ++i)
        sum += sample(i);
    for (int i = 0; i < length; ++i) {
        sum += sample(i + after);
        line[i * stride] = static_cast<uchar>((sum + box / 2) / box);
        sum -= sample(i - before);
    }
}

/// Three box blurs come within a few parts in a hundred of the Gaussian with half the blur as its deviation.
void blur(QImage& mask, int extent)
{
    const int box = std::max(1, static_cast<int>(extent * 0.94));
    std::vector<uchar> source(static_cast<size_t>(std::max(mask.width(), mask.height())));
    for (int pass = 0; pass < 3; ++pass) {
        // Boxes of even width lean to one side; alternating the side keeps the shadow centred.
        const int width = box % 2 == 1 ? box : box + (pass == 1 ? 1 : -1);
        for (int y = 0; y < mask.height(); ++y)
            blurLine(mask.scanLine(y), mask.width(), 1, std::max(1, width), source);
        for (int x = 0; x < mask.width(); ++x)
            blurLine(mask.bits() + x, mask.height(), mask.bytesPerLine(), std::max(1, width), source);
    }
}

} // namespace

ShadowProvider::ShadowProvider()
    : QQuickImageProvider(Image)
{
}

QImage ShadowProvider::requestImage(const QString& id, QSize* size, const QSize&)
{
    const QStringList parts = id.split(u'/');
    const QColor colour(parts.size() == 4 ? u'#' + parts[3] : QString());
    if (!colour.isValid()) {
        qWarning("\"%s\" is not a shadow.", qPrintable(id));
        return {};
    }
    const int extent = std::clamp(parts[0].toInt(), 0, largestExtent);
    const int radius = std::clamp(parts[1].toInt(), 0, largestExtent);
    const int inner = std::clamp(parts[2].toInt(), 1, 2 * largestExtent);

    const int side = 2 * (extent + inner) + 1;
    QImage mask(side, side, QImage::Format_Grayscale8);
    mask.fill(Qt::black);
    {
        QPainter painter(&mask);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawRoundedRect(QRect(extent, extent, 2 * inner + 1, 2 * inner + 1), radius, radius);
    }
    blur(mask, extent);

    QImage shadow(mask.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < side; ++y) {
        const uchar* from = mask.constScanLine(y);
        auto* to = reinterpret_cast<QRgb*>(shadow.scanLine(y));
        for (int x = 0; x < side; ++x)
            to[x] = qPremultiply(qRgba(colour.red(), colour.green(), colour.blue(), colour.alpha() * from[x] / 255));
    }
    if (size)
        *size = shadow.size();
    return shadow;
}

} // namespace loom
