#pragma once

#include "commerce/CheckoutAuth.h"
#include "commerce/CheckoutModel.h"

namespace loom
{

class CartStore;
struct Cart;

/// Begins checkouts: waits until the cart is what the shopper sees, asks the backend for a hand-over, and then has a
/// checkout to show. One at a time. One per process; main thread.
class CheckoutStarter final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isStarting READ isStarting NOTIFY changed)
    Q_PROPERTY(bool isStartingCart READ isStartingCart NOTIFY changed)
    Q_PROPERTY(bool isPayingCart READ isPayingCart NOTIFY changed)
    Q_PROPERTY(QString cartErrorText READ cartErrorText NOTIFY changed)
    Q_PROPERTY(QString buyErrorText READ buyErrorText NOTIFY changed)

public:
    CheckoutStarter(WidgetClient& widget, CartStore& cart, QString supportBase, CheckoutModel::Services services,
                    std::function<QString()> locale, QObject* parent = nullptr);

    [[nodiscard]] bool isStarting() const { return m_starting.isRunning() || m_waiting; }
    /// The checkout that is on its way is the cart's.
    [[nodiscard]] bool isStartingCart() const { return isStarting() && m_request.fromCart; }
    /// A window in which the cart can be paid for is open.
    [[nodiscard]] bool isPayingCart() const;
    /// Why the cart's last checkout did not begin, or that of a piece bought by itself; empty when it did.
    [[nodiscard]] QString cartErrorText() const { return m_failed == Origin::Cart ? sentence() : QString(); }
    [[nodiscard]] QString buyErrorText() const { return m_failed == Origin::Piece ? sentence() : QString(); }

    /// An open checkout of the same request is shown again. Another one that is asked for meanwhile follows.
    void start(const CheckoutRequest& request);
    Q_INVOKABLE void forgetError();

Q_SIGNALS:
    void changed();
    /// A checkout begins that was not there before.
    void opened();
    /// There is a checkout to show. It lives until it is closed.
    void ready(loom::CheckoutModel* checkout);

private:
    enum class Origin { None, Cart, Piece };

    [[nodiscard]] static QString sentence();
    [[nodiscard]] bool showOpen(const CheckoutRequest& request);
    void proceedToNext();
    void fail() { m_failed = m_request.fromCart ? Origin::Cart : Origin::Piece; }
    void proceedWhenSettled();
    [[nodiscard]] QCoro::Task<> prepare();
    void show(const QUrl& start, const CheckoutHosts& hosts, const Cart& cart);

    CheckoutAuth m_auth;
    CartStore& m_cart;
    QString m_supportBase;
    CheckoutModel::Services m_services;
    std::function<QString()> m_locale;
    CheckoutRequest m_request;
    std::optional<CheckoutRequest> m_next;
    bool m_waiting = false; ///< for the cart to be what the shopper sees
    Origin m_failed = Origin::None;
    std::vector<CheckoutModel*> m_open; ///< owned as children
    Work m_starting;
};

} // namespace loom
