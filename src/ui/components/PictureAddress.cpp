#include "ui/components/PictureAddress.h"

#include <QStringList>
#include <QUrl>

#include <algorithm>

namespace loom
{

namespace
{

// A column of cards is 184 to 250 wide, so that it meets one or two fine steps at any width of the window. Large
// pictures take coarser ones: there a step of 64 saves little and would miss the cache at every drag of an edge.
constexpr int fineStep = 64;
constexpr int fineLimit = 640;
constexpr int coarseStep = 160;
constexpr int largestWidth = 2560;

constexpr int roundUp(int value, int step)
{
    return (value + step - 1) / step * step;
}

} // namespace

int pictureWidthStep(int widthInPixels)
{
    if (widthInPixels <= 0)
        return 0;
    if (widthInPixels >= largestWidth)
        return largestWidth;
    return roundUp(widthInPixels, widthInPixels <= fineLimit ? fineStep : coarseStep);
}

QString pictureAddress(const QString& text, int widthInPixels)
{
    const int width = pictureWidthStep(widthInPixels);
    QUrl address(text, QUrl::TolerantMode);
    if (width == 0 || !address.isValid() || address.scheme() != u"https" || address.host().isEmpty() ||
        !address.userInfo().isEmpty())
        return {};

    // Items are kept letter for letter: QUrlQuery would rewrite some of them, and a signed address would no longer
    // be the one that was signed.
    QStringList items = address.query(QUrl::FullyEncoded).split(u'&', Qt::SkipEmptyParts);
    const auto isWidth = [](const QString& item) {
        return item == u"width" || item.startsWith(u"width=");
    };
    const QString asked = QStringLiteral("width=%1").arg(width);
    if (const auto first = std::ranges::find_if(items, isWidth); first != items.end()) {
        *first = asked;
        items.erase(std::remove_if(std::next(first), items.end(), isWidth), items.end());
    } else {
        items.append(asked);
    }
    address.setQuery(items.join(u'&'), QUrl::StrictMode);
    address.setFragment(QString());
    return address.toString(QUrl::FullyEncoded);
}

} // namespace loom
