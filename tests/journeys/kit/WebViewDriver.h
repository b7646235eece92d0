#pragma once

#include "kit/WindowDriver.h"

#include <QVariant>

namespace loom
{

/// Works the page of the browser engine that a window shows, by scripts and by clicks where something stands. Waits for
/// a page that is on its way.
class WebViewDriver
{
public:
    explicit WebViewDriver(WindowDriver window)
        : m_window(std::move(window))
    {
    }

    /// The view that is seen and has loaded; null while there is none.
    [[nodiscard]] QQuickItem* view() const;
    /// What a script answers in the page that is shown.
    QVariant evaluate(const QString& script) const;
    void awaitTrue(const QString& script) const;
    /// Waits for the first element of a selector, brings it into view and clicks it.
    void click(const QString& selector) const;
    /// The same for the first link that leads there.
    void clickLink(const QString& address) const;

private:
    WindowDriver m_window;
};

/// Whether this process has the browser engine's library in its memory.
[[nodiscard]] bool isEngineMapped();

} // namespace loom
