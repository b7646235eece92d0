#include "platform/DesktopGlobalKey.h"

#include <utility>

namespace loom
{

namespace
{

const QString usualText = QStringLiteral("Ctrl+Alt+M");

} // namespace

DesktopGlobalKey::DesktopGlobalKey(QObject* parent)
    : GlobalKey(parent)
    , m_portal(QStringLiteral("CTRL+ALT+m"), usualText)
    , m_grab('m')
{
    connect(&m_portal, &PortalShortcut::pressed, this, &GlobalKey::pressed);
    connect(&m_portal, &PortalShortcut::lost, this, &GlobalKey::isBoundChanged);
    connect(&m_grab, &XGrabbedKey::pressed, this, &GlobalKey::pressed);
}

QString DesktopGlobalKey::keyText() const
{
    return m_portal.isBound() ? m_portal.keyText() : m_grab.isGrabbed() ? usualText : QString();
}

void DesktopGlobalKey::setBound(bool isBound, const QString& purpose)
{
    if (std::exchange(m_isWanted, isBound) == isBound)
        return;
    if (isBound) {
        static_cast<void>(bind(purpose));
        return;
    }
    m_binding.stop();
    m_portal.release();
    if (m_grab.isGrabbed()) {
        m_grab.release();
        Q_EMIT isBoundChanged();
    }
}

QCoro::Task<> DesktopGlobalKey::bind(QString purpose)
{
    const Work::Run run = m_binding.begin();
    const PortalShortcut::Outcome outcome = co_await m_portal.bind(purpose, run.stop());
    if (run.isStopped())
        co_return;
    if (outcome == PortalShortcut::Outcome::Absent)
        m_grab.grab();
    if (this->isBound())
        Q_EMIT isBoundChanged();
}

} // namespace loom
