#include "platform/XGrabbedKey.h"

#include <QGuiApplication>

#include <array>
#include <cstdlib>
#include <memory>
#include <span>

namespace loom
{

namespace
{

template <typename Reply>
using Owned = std::unique_ptr<Reply, decltype(&std::free)>;

constexpr uint16_t wanted = XCB_MOD_MASK_CONTROL | XCB_MOD_MASK_1; // Alt
constexpr uint16_t capsLock = XCB_MOD_MASK_LOCK;
constexpr uint16_t numberLock = XCB_MOD_MASK_2;
/// A grab is for exactly these keys held.
constexpr std::array<uint16_t, 4> withLocks{wanted, wanted | capsLock, wanted | numberLock,
                                            wanted | capsLock | numberLock};

xcb_connection_t* server()
{
    const auto* const application = qobject_cast<QGuiApplication*>(QCoreApplication::instance());
    const auto* const x = application ? application->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x ? x->connection() : nullptr;
}

xcb_window_t root(xcb_connection_t* connection)
{
    return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
}

/// The key that bears the letter, in whichever of the layouts; 0 where none does.
xcb_keycode_t keyOf(char letter, xcb_connection_t* connection)
{
    const xcb_setup_t& setup = *xcb_get_setup(connection);
    const auto count = static_cast<uint8_t>(setup.max_keycode - setup.min_keycode + 1);
    const Owned<xcb_get_keyboard_mapping_reply_t> mapping(
        xcb_get_keyboard_mapping_reply(connection, xcb_get_keyboard_mapping(connection, setup.min_keycode, count),
                                       nullptr),
        &std::free);
    if (!mapping || mapping->keysyms_per_keycode == 0)
        return 0;
    const std::span<const xcb_keysym_t> symbols(
        xcb_get_keyboard_mapping_keysyms(mapping.get()),
        static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(mapping.get())));
    for (std::size_t at = 0; at < symbols.size(); ++at) {
        if (symbols[at] == static_cast<xcb_keysym_t>(letter)) // Latin letters are their own symbols
            return static_cast<xcb_keycode_t>(setup.min_keycode + at / mapping->keysyms_per_keycode);
    }
    return 0;
}

} // namespace

XGrabbedKey::XGrabbedKey(char letter)
    : m_letter(letter)
{
}

XGrabbedKey::~XGrabbedKey()
{
    release();
}

bool XGrabbedKey::grab()
{
    xcb_connection_t* const connection = server();
    if (!connection || isGrabbed())
        return isGrabbed();
    m_key = keyOf(m_letter, connection);
    if (m_key == 0)
        return false;
    std::array<xcb_void_cookie_t, withLocks.size()> asked{};
    for (std::size_t at = 0; at < withLocks.size(); ++at) {
        asked[at] = xcb_grab_key_checked(connection, 0, root(connection), withLocks[at], m_key, XCB_GRAB_MODE_ASYNC,
                                         XCB_GRAB_MODE_ASYNC);
    }
    bool isRefused = false;
    for (const xcb_void_cookie_t& question : asked) {
        const Owned<xcb_generic_error_t> error(xcb_request_check(connection, question), &std::free);
        isRefused = isRefused || error;
    }
    QCoreApplication::instance()->installNativeEventFilter(this);
    if (isRefused)
        release();
    return isGrabbed();
}

void XGrabbedKey::release()
{
    if (!isGrabbed())
        return;
    if (xcb_connection_t* const connection = server()) {
        for (const uint16_t modifiers : withLocks)
            xcb_ungrab_key(connection, m_key, root(connection), modifiers);
        xcb_flush(connection);
    }
    QCoreApplication::instance()->removeNativeEventFilter(this);
    m_key = 0;
    m_isDown = false;
}

bool XGrabbedKey::nativeEventFilter(const QByteArray& eventType, void* message, qintptr*)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    constexpr uint8_t sent = 0x80; // set where another program made the event up
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    if (event->response_type == XCB_KEY_RELEASE) {
        const auto* const key = static_cast<const xcb_key_release_event_t*>(message);
        if (key->detail == m_key) {
            m_isDown = false;
            m_releasedAt = key->time;
        }
        return false;
    }
    if ((event->response_type & ~sent) != XCB_KEY_PRESS)
        return false;
    const auto* const key = static_cast<const xcb_key_press_event_t*>(message);
    constexpr uint16_t locks = capsLock | numberLock;
    if (key->detail != m_key || (key->state & 0xff & ~locks) != wanted || (event->response_type & sent) != 0)
        return false;
    // A key that is held down repeats itself, with or without letting go in between.
    const bool isRepeat = std::exchange(m_isDown, true) || key->time == m_releasedAt;
    if (!isRepeat)
        Q_EMIT pressed();
    return true;
}

} // namespace loom
