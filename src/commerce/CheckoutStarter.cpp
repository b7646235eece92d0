#include "commerce/CheckoutStarter.h"

#include "base/Announcements.h"
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
                                 CheckoutModel::Services services, Questions questions, QObject* parent)
    : QObject(parent)
    , m_auth(widget)
    , m_cart(cart)
    , m_supportBase(std::move(supportBase))
    , m_services(std::move(services))
    , m_questions(std::move(questions))
    , m_starting([this] {
        Q_EMIT changed();
        proceedToNext();
    })
{
    connect(&m_cart, &CartStore::changed, this, &CheckoutStarter::proceedWhenSettled);
    connect(&m_services.announcements, &Announcements::posted, this, [this](Announcement announcement) {
        if (announcement == Announcement::AuthChanged)
            endKnown();
    });
}

QString CheckoutStarter::sentence()
{
    return QCoreApplication::translate("Loomstreet", "Couldn't start checkout. Try again.");
}

bool CheckoutStarter::isPayingCart() const
{
    return std::ranges::any_of(m_open, [](const CheckoutModel* checkout) {
        return checkout->request().fromCart && checkout->phase() != CheckoutModel::Phase::Completed &&
               checkout->phase() != CheckoutModel::Phase::Failed;
    });
}

void CheckoutStarter::forgetError()
{
    if (std::exchange(m_failed, Origin::None) != Origin::None)
        Q_EMIT changed();
}

void CheckoutStarter::start(const CheckoutRequest& request)
{
    if (isStarting()) {
        if (request != m_request)
            m_next = request;
        return;
    }
    if (showOpen(request))
        return;
    m_request = request;
    m_failed = Origin::None;
    m_waiting = true;
    Q_EMIT changed();
    if (request.fromCart)
        m_cart.settle();
    proceedWhenSettled();
}

bool CheckoutStarter::showOpen(const CheckoutRequest& request)
{
    const auto open = std::ranges::find(m_open, request, &CheckoutModel::request);
    if (open == m_open.end())
        return false;
    Q_EMIT ready(*open);
    return true;
}

void CheckoutStarter::proceedToNext()
{
    if (m_next && !isStarting())
        start(*std::exchange(m_next, std::nullopt));
}

void CheckoutStarter::proceedWhenSettled()
{
    if (!m_waiting || (m_request.fromCart && !m_cart.isSettled()))
        return;
    m_waiting = false;
    if (m_request.fromCart && m_cart.cart())
        m_request.url = m_cart.cart()->checkoutURL;
    if (!showOpen(m_request)) {
        static_cast<void>(prepare());
        return;
    }
    Q_EMIT changed();
    proceedToNext();
}

QCoro::Task<> CheckoutStarter::prepare()
{
    const Work::Run run = m_starting.begin();
    const CheckoutRequest request = m_request;
    const Cart* const found = m_cart.cartAt(request.url);
    if (!found || !mayStartCheckoutAt(request.url)) {
        fail();
        co_return; // the end of the run tells of the change
    }
    const Cart cart = *found;
    const CheckoutHosts hosts = checkoutHosts(request.url, m_supportBase);
    if (m_questions.mayHandOver && !m_questions.mayHandOver()) {
        show(request.url, hosts, cart, {});
        co_return;
    }
    co_await m_questions.sessionKnown(run.stop());
    if (run.isStopped())
        co_return;
    QString token = m_questions.appToken();
    auto prepared = co_await m_auth.prepare(cart.id, m_questions.locale(), run.stop());
    // Of a session that ended meanwhile nothing is handed over any more.
    while (!run.isStopped() && prepared && token != m_questions.appToken()) {
        token = m_questions.appToken();
        prepared = co_await m_auth.prepare(cart.id, m_questions.locale(), run.stop());
    }
    if (run.isStopped())
        co_return;
    if (const auto start = checkoutStart(prepared, request.url, hosts))
        show(*start, hosts, cart, *start == request.url ? QString() : token);
    else
        fail();
}

void CheckoutStarter::show(const QUrl& start, const CheckoutHosts& hosts, const Cart& cart, const QString& token)
{
    CheckoutGoods goods{.pieces = cart.totalQuantity, .pictures = {}};
    for (const CartLine& line : cart.lines) {
        if (line.imageURL && line.quantity > 0 && goods.pictures.size() < maximumPictures)
            goods.pictures.append(*line.imageURL);
    }
    auto* const checkout = new CheckoutModel(m_request, start, hosts, std::move(goods), m_services, this);
    m_open.push_back(checkout);
    if (!token.isEmpty())
        m_known.emplace_back(checkout, token);
    connect(checkout, &CheckoutModel::closed, this, [this, checkout] {
        std::erase(m_open, checkout);
        std::erase_if(m_known, [checkout](const auto& known) { return known.first == checkout; });
        // After the window, which holds on to it.
        QMetaObject::invokeMethod(checkout, &QObject::deleteLater, Qt::QueuedConnection);
        Q_EMIT changed();
    });
    connect(checkout, &CheckoutModel::changed, this, &CheckoutStarter::changed);
    Q_EMIT opened();
    Q_EMIT ready(checkout);
}

void CheckoutStarter::endKnown()
{
    const QString token = m_questions.appToken();
    for (const auto& [checkout, itsToken] : std::vector(m_known)) {
        // Thanks for an order may be read on: nothing can be done there any more.
        if (itsToken != token && checkout->phase() != CheckoutModel::Phase::Completed)
            checkout->end();
    }
}

} // namespace loom
