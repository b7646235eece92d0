#include "support/SupportAttachment.h"

#include <QUrl>

namespace loom
{

bool SupportAttachment::isOpenable() const
{
    const QUrl address(url, QUrl::StrictMode);
    return address.isValid() && address.scheme() == QLatin1String("https") && !address.host().isEmpty() &&
           address.userInfo().isEmpty();
}

} // namespace loom
