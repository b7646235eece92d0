#pragma once

#include "net/Work.h"
#include "platform/PortalShortcut.h"
#include "platform/XGrabbedKey.h"
#include "stylist/voice/GlobalKey.h"

namespace loom
{

/// Ctrl+Alt+M, by the portal of the desktop where it has one, else by a grab on X11, else not at all. The desktop is
/// asked only when the key is wanted. Main thread.
class DesktopGlobalKey final : public GlobalKey
{
    Q_OBJECT

public:
    explicit DesktopGlobalKey(QObject* parent = nullptr);

    void setBound(bool isBound, const QString& purpose) override;
    [[nodiscard]] bool isBound() const override { return m_portal.isBound() || m_grab.isGrabbed(); }
    [[nodiscard]] QString keyText() const override;

private:
    [[nodiscard]] QCoro::Task<> bind(QString purpose);

    bool m_isWanted = false;
    PortalShortcut m_portal;
    XGrabbedKey m_grab;
    Work m_binding;
};

} // namespace loom
