#pragma once

#include "commerce/CheckoutAuth.h"
#include "commerce/CheckoutModel.h"

namespace loom
{

class CartStore;
struct Cart;

/// Begins checkouts: waits until the cart is what the shopper sees and it is known who they are, asks the backend for a
/// hand-over, and then has a checkout to show. One at a time. A checkout at which the customer arrived known ends with
/// their session. One per process; main thread.
class CheckoutStarter final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isStarting READ isStarting NOTIFY changed)
    Q_PROPERTY(bool isStartingCart READ isStartingCart NOTIFY changed)
    Q_PROPERTY(bool isPayingCart READ isPayingCart NOTIFY changed)
    Q_PROPERTY(QString cartErrorText READ cartErrorText NOTIFY changed)
    Q_PROPERTY(QString buyErrorText READ buyErrorText NOTIFY changed)

public:
    /// What it asks the rest of the application.
    struct Questions {
        /// The language, as the platform writes it.
        std::function<QString()> locale;
        /// Ends when it is known who is signed in, or when that took too long.
        std::function<QCoro::Task<>(std::stop_token)> sessionKnown;
        /// Whether customers may arrive known; where not, the plain address is opened at once. They may if this is
        /// empty.
        std::function<bool()> mayHandOver;
        /// The token of who is signed in now; empty of a guest.
        std::function<QString()> appToken;
    };

    CheckoutStarter(WidgetClient& widget, CartStore& cart, QString supportBase, CheckoutModel::Services services,
                    Questions questions, QObject* parent = nullptr);

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
    /// `token` of the customer who arrives known; empty where nobody does.
    void show(const QUrl& start, const CheckoutHosts& hosts, const Cart& cart, const QString& token);
    void endKnown();

    CheckoutAuth m_auth;
    CartStore& m_cart;
    QString m_supportBase;
    CheckoutModel::Services m_services;
    Questions m_questions;
    CheckoutRequest m_request;
    std::optional<CheckoutRequest> m_next;
    bool m_waiting = false; ///< for the cart to be what the shopper sees
    Origin m_failed = Origin::None;
    std::vector<CheckoutModel*> m_open; ///< owned as children
    /// Those of them at which a customer arrived known, and the token of their session.
    std::vector<std::pair<CheckoutModel*, QString>> m_known;
    Work m_starting;
};

} // namespace loom
