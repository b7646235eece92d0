#include "commerce/CheckoutStarter.h"

#include "commerce/CartStore.h"

#include <QCoreApplication>

namespace loom
{

namespace
{

/// As many pieces as are shown beside the thanks for an order.
constexpr qsizetype maximumPictures = 5;

} // namespace

CheckoutStarter::CheckoutStarter(WidgetClient& widget, CartStore& cart, QString supportBase,
                                 CheckoutModel::Services services, std::function<QString()> locale, QObject* parent)
    : QObject(parent)
    , m_auth(widget)
    , m_cart(cart)
    , m_supportBase(std::move(supportBase))
    , m_services(std::move(services))
    , m_locale(std::move(locale))
    , m_starting([this] { Q_EMIT changed(); })
{
    connect(&m_cart, &CartStore::changed, this, &CheckoutStarter::proceedWhenSettled);
}

QString CheckoutStarter::errorText() const
{
    return m_failed ? QCoreApplication::translate("Loomstreet", "Couldn't start checkout. Try again.") : QString();
}

bool CheckoutStarter::isPayingCart() const
{
    return std::ranges::any_of(m_open, [](const CheckoutModel* checkout) {
        return checkout->request().fromCart && checkout->phase() != CheckoutModel::Phase::Completed;
    });
}

void CheckoutStarter::forgetError()
{
    if (std::exchange(m_failed, false))
        Q_EMIT changed();
}

void CheckoutStarter::start(const CheckoutRequest& request)
{
    if (isStarting())
        return;
    const auto open = std::ranges::find(m_open, request, &CheckoutModel::request);
    if (open != m_open.end()) {
        Q_EMIT ready(*open);
        return;
    }
    m_request = request;
    m_failed = false;
    m_waiting = true;
    Q_EMIT changed();
    if (request.fromCart)
        m_cart.settle();
    proceedWhenSettled();
}

void CheckoutStarter::proceedWhenSettled()
{
    if (!m_waiting || (m_request.fromCart && !m_cart.isSettled()))
        return;
    m_waiting = false;
    if (m_request.fromCart && m_cart.cart())
        m_request.url = m_cart.cart()->checkoutURL;
    static_cast<void>(prepare());
}

QCoro::Task<> CheckoutStarter::prepare()
{
    const Work::Run run = m_starting.begin();
    const CheckoutRequest request = m_request;
    const Cart* const found = m_cart.cartAt(request.url);
    if (!found || !mayStartCheckoutAt(request.url)) {
        m_failed = true;
        co_return; // the end of the run tells of the change
    }
    const Cart cart = *found;
    const CheckoutHosts hosts = checkoutHosts(request.url, m_supportBase);
    const auto prepared = co_await m_auth.prepare(cart.id, m_locale(), run.stop());
    if (run.isStopped())
        co_return;
    if (const auto start = checkoutStart(prepared, request.url, hosts))
        show(*start, hosts, cart);
    else
        m_failed = true;
}

void CheckoutStarter::show(const QUrl& start, const CheckoutHosts& hosts, const Cart& cart)
{
    CheckoutGoods goods{.pieces = cart.totalQuantity, .pictures = {}};
    for (const CartLine& line : cart.lines) {
        if (line.imageURL && line.quantity > 0 && goods.pictures.size() < maximumPictures)
            goods.pictures.append(*line.imageURL);
    }
    auto* const checkout = new CheckoutModel(m_request, start, hosts, std::move(goods), m_services, this);
    m_open.push_back(checkout);
    connect(checkout, &CheckoutModel::closed, this, [this, checkout] {
        std::erase(m_open, checkout);
        // After the window, which holds on to it.
        QMetaObject::invokeMethod(checkout, &QObject::deleteLater, Qt::QueuedConnection);
        Q_EMIT changed();
    });
    connect(checkout, &CheckoutModel::changed, this, &CheckoutStarter::changed);
    Q_EMIT ready(checkout);
}

} // namespace loom
