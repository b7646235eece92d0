#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>

#include <xcb/xcb.h>

namespace loom
{

/// Ctrl+Alt and a letter on a desktop of X11, whichever window has the keyboard and whichever locks are on. Main
/// thread.
class XGrabbedKey final : public QObject, private QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    explicit XGrabbedKey(char letter);
    ~XGrabbedKey() override;

    /// False where the desktop is another, or another program has the key.
    bool grab();
    void release();
    [[nodiscard]] bool isGrabbed() const { return m_key != 0; }

Q_SIGNALS:
    void pressed();

private:
    [[nodiscard]] bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    char m_letter;
    xcb_keycode_t m_key = 0;
    bool m_isDown = false;
    xcb_timestamp_t m_releasedAt = 0;
};

} // namespace loom
