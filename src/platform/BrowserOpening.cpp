#include "platform/BrowserOpening.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>

namespace loom
{

void openInBrowser(const QUrl& url)
{
    QProcess opener;
    opener.setProgram(QStringLiteral("xdg-open"));
    opener.setArguments({url.toString(QUrl::FullyEncoded)});
    opener.setStandardOutputFile(QProcess::nullDevice());
    opener.setStandardErrorFile(QProcess::nullDevice());
    if (!opener.startDetached())
        QDesktopServices::openUrl(url);
}

} // namespace loom
