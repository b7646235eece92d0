#pragma once

#include "base/Announcements.h"
#include "kit/Journey.h"
#include "kit/WebViewDriver.h"

namespace loom
{

/// A journey that begins with a bag, and goes on in the window of the checkout.
class PayingJourney : public Journey
{
protected:
    PayingJourney() { tolerateEngine(); }

    /// Opens the application with two pieces in the bag, and the bag.
    void startWithBag(const Circumstances& circumstances = {});
    /// Another bag takes the place of the one there is.
    void fillBag();
    /// Presses the button below the bag.
    void askForCheckout() const;
    /// The same until the page can be seen.
    void checkOut();
    void checkOutWithBag();

    [[nodiscard]] WebViewDriver page() const { return WebViewDriver(checkout); }
    void pay() const { page().click(QStringLiteral("#pay-now")); }
    void awaitOrder(const QString& number) const;
    /// Waits until the window of the checkout is gone and the shop has the keyboard.
    void awaitCheckoutGone() const;
    void finish() const;

    /// The number of the order that was placed last.
    [[nodiscard]] QString orderNumber(const char* kind = "number");
    /// How often a path of the backend was asked for.
    [[nodiscard]] int countPath(const QString& path);

    WindowDriver checkout; ///< its window
    QList<Announcement> announced;
};

} // namespace loom
