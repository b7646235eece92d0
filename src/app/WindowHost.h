#pragma once

namespace loom
{

class CheckoutModel;
class WindowSession;

/// Shows windows for sessions. What the application model knows of the user interface. Main thread.
class WindowHost
{
public:
    WindowHost() = default;
    WindowHost(const WindowHost&) = delete;
    WindowHost& operator=(const WindowHost&) = delete;
    virtual ~WindowHost() = default;

    /// Makes and shows the window of a session.
    virtual void show(WindowSession& session) = 0;
    /// Brings a window to the front.
    virtual void raise(WindowSession& session) = 0;
    virtual void showSettings() = 0;
    /// Shows a checkout in a window of its own, or brings that window to the front. It ends with the checkout.
    virtual void showCheckout(CheckoutModel& checkout) = 0;
    /// Shows the stylist in a window of her own, or brings that to the front.
    virtual void showMira() = 0;
    /// Shows the call with her in a window of its own, or brings that to the front. It closes by itself when the call
    /// goes elsewhere.
    virtual void showCall() = 0;
    /// Whether any main window can be seen.
    [[nodiscard]] virtual bool hasVisibleWindow() const = 0;
    /// Gives every open window the application's style.
    virtual void applyWindowStyle() = 0;
};

} // namespace loom
