#include "ui/shell/DesktopCompositing.h"

#include <QByteArray>
#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace loom
{

namespace
{

struct Freed {
    void operator()(void* reply) const { std::free(reply); }
};

/// Whoever lays windows over one another owns this selection of the first screen.
bool isCompositedByX(xcb_connection_t& connection)
{
    const QByteArray name = QByteArrayLiteral("_NET_WM_CM_S0");
    const std::unique_ptr<xcb_intern_atom_reply_t, Freed> atom(xcb_intern_atom_reply(
        &connection, xcb_intern_atom(&connection, 1, static_cast<uint16_t>(name.size()), name.constData()), nullptr));
    if (!atom || atom->atom == XCB_ATOM_NONE)
        return false;
    const std::unique_ptr<xcb_get_selection_owner_reply_t, Freed> owner(
        xcb_get_selection_owner_reply(&connection, xcb_get_selection_owner(&connection, atom->atom), nullptr));
    return owner && owner->owner != XCB_WINDOW_NONE;
}

bool isComposited()
{
    if (auto* const x = qGuiApp->nativeInterface<QNativeInterface::QX11Application>(); x && x->connection())
        return isCompositedByX(*x->connection());
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace

DesktopCompositing::DesktopCompositing(QObject* parent)
    : QObject(parent)
    , m_isOn(isComposited())
{
}

void DesktopCompositing::look()
{
    const bool isOn = isComposited();
    if (isOn == m_isOn)
        return;
    m_isOn = isOn;
    Q_EMIT changed();
}

} // namespace loom
