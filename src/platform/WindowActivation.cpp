#include "platform/WindowActivation.h"

#include <QGuiApplication>
#include <QWindow>
#include <xcb/xcb.h>

#include <algorithm>
#include <cstdlib>
#include <memory>

namespace loom
{

namespace
{

const char* const waylandVariable = "XDG_ACTIVATION_TOKEN";

/// One window of the X server and what a window manager has to be told about it.
class XWindow
{
public:
    XWindow(xcb_connection_t& connection, xcb_window_t window)
        : m_connection(connection)
        , m_window(window)
        , m_root(xcb_setup_roots_iterator(xcb_get_setup(&connection)).data->root)
    {
    }

    void setStartupId(const QByteArray& id) const
    {
        xcb_change_property(&m_connection, XCB_PROP_MODE_REPLACE, m_window, atom("_NET_STARTUP_ID"),
                            atom("UTF8_STRING"), 8, static_cast<uint32_t>(id.size()), id.constData());
    }
    void setUserTime(quint32 time) const
    {
        xcb_change_property(&m_connection, XCB_PROP_MODE_REPLACE, m_window, atom("_NET_WM_USER_TIME"),
                            XCB_ATOM_CARDINAL, 32, 1, &time);
    }
    void activate(quint32 time) const
    {
        constexpr uint32_t fromAnApplication = 1;
        xcb_client_message_event_t message = about(m_window, "_NET_ACTIVE_WINDOW", 32);
        message.data.data32[0] = fromAnApplication;
        message.data.data32[1] = time;
        send(message, XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    }
    /// Tells the desktop that the launch has come to its end, in pieces of 20 bytes.
    void endLaunch(const QByteArray& id) const
    {
        QByteArray text = "remove: ID=\"";
        for (const char byte : id) {
            if (byte == '"' || byte == '\\')
                text += '\\';
            text += byte;
        }
        text += '"';
        text += '\0';
        const char* type = "_NET_STARTUP_INFO_BEGIN";
        for (qsizetype at = 0; at < text.size(); at += pieceSize) {
            xcb_client_message_event_t message = about(m_window, type, 8);
            const QByteArray piece = text.mid(at, pieceSize);
            std::ranges::copy(piece, std::begin(message.data.data8));
            send(message, XCB_EVENT_MASK_PROPERTY_CHANGE);
            type = "_NET_STARTUP_INFO";
        }
    }
    void flush() const { xcb_flush(&m_connection); }

private:
    static constexpr qsizetype pieceSize = 20;

    [[nodiscard]] xcb_atom_t atom(const QByteArray& name) const
    {
        const auto asked = xcb_intern_atom(&m_connection, 0, static_cast<uint16_t>(name.size()), name.constData());
        const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> answer(
            xcb_intern_atom_reply(&m_connection, asked, nullptr), &std::free);
        return answer ? answer->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
    }
    [[nodiscard]] xcb_client_message_event_t about(xcb_window_t window, const char* type, uint8_t format) const
    {
        xcb_client_message_event_t message{};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = format;
        message.window = window;
        message.type = atom(type);
        return message;
    }
    void send(const xcb_client_message_event_t& message, uint32_t mask) const
    {
        xcb_send_event(&m_connection, 0, m_root, mask, reinterpret_cast<const char*>(&message));
    }

    xcb_connection_t& m_connection;
    xcb_window_t m_window;
    xcb_window_t m_root;
};

} // namespace

void WindowActivation::follow(const Activation& activation)
{
    m_startupId = activation.startupId;
    // Where Qt looks for it when a window asks to be activated, and what it then takes away.
    if (activation.activationToken.isEmpty())
        qunsetenv(waylandVariable);
    else
        qputenv(waylandVariable, activation.activationToken.toUtf8());
}

void WindowActivation::activate(QWindow& window)
{
    window.requestActivate();
    const QByteArray id = std::exchange(m_startupId, {}).toUtf8();
    const auto* const server = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!server || !server->connection() || id.isEmpty())
        return;
    // Qt asks in the name of the last click in this application, which may be long ago.
    const XWindow target(*server->connection(), static_cast<xcb_window_t>(window.winId()));
    target.setStartupId(id);
    if (const quint32 time = timeOf(QString::fromUtf8(id)); time != 0) {
        target.setUserTime(time);
        target.activate(time);
    }
    target.endLaunch(id);
    target.flush();
}

quint32 WindowActivation::timeOf(const QString& startupId)
{
    const QString mark = QStringLiteral("_TIME");
    const qsizetype at = startupId.lastIndexOf(mark);
    return at < 0 ? 0 : startupId.mid(at + mark.size()).toUInt();
}

} // namespace loom
