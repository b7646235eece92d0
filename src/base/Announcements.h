#pragma once

#include <QObject>

namespace loom
{

/// What one part of the application tells all others without knowing them.
enum class Announcement {
    AuthChanged,       ///< "lst.auth.changed": signed in, signed out, or the account deleted
    CheckoutClosed,    ///< "lst.checkout.closed": a checkout window closed
    CheckoutCompleted, ///< "lst.checkout.completed": an order was placed
};

[[nodiscard]] constexpr const char* nameOf(Announcement announcement)
{
    switch (announcement) {
    case Announcement::AuthChanged:
        return "lst.auth.changed";
    case Announcement::CheckoutClosed:
        return "lst.checkout.closed";
    case Announcement::CheckoutCompleted:
        return "lst.checkout.completed";
    }
    return "";
}

/// Carries announcements from whoever posts one to whoever listens. One per process; main thread.
class Announcements final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    void post(Announcement announcement) { Q_EMIT posted(announcement); }

Q_SIGNALS:
    void posted(loom::Announcement announcement);
};

} // namespace loom
