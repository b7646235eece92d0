#include "commerce/CartStore.h"

#include "storage/Preferences.h"

#include <qcoro/qcorofuture.h>

namespace loom
{

namespace
{

bool isCode(const CartDiscountCode& code, const QString& text)
{
    return code.code.compare(text, Qt::CaseInsensitive) == 0;
}

} // namespace

CartStore::CartStore(CartAPI& api, Preferences& preferences, Clock& clock, QObject* parent)
    : QObject(parent)
    , m_api(api)
    , m_preferences(preferences)
    , m_clock(clock)
    , m_refreshing([this] { Q_EMIT changed(); })
    , m_applying([this] { Q_EMIT changed(); })
{
}

CartStore::~CartStore()
{
    m_stop.request_stop();
}

QString CartStore::storedID() const
{
    return m_preferences.value(preferences::cartID);
}

void CartStore::landed()
{
    --m_inFlight;
    if (m_inFlight == 0 && std::exchange(m_wasOvertaken, false))
        refresh();
}

void CartStore::setFailure(const Failure& failure)
{
    if (failure.isCancelled())
        return;
    m_failure = failure.error();
    Q_EMIT changed();
}

void CartStore::adopt(Cart cart, const Request& request)
{
    if (request.isOvertaken()) {
        m_wasOvertaken = true;
        return;
    }
    m_adopted = request.number();
    m_cart = std::move(cart);
    m_loadFailed = false;
    m_clamped.removeIf([this](const QString& line) { return !m_cart->line(line); });
    Q_EMIT changed();
    const QString id = m_cart->id;
    if (!hasAppAttribution(*m_cart) && !m_attributed.contains(id)) {
        m_attributed.insert(id);
        static_cast<void>(attribute(id));
    }
}

void CartStore::adoptAsOwn(const Cart& cart, const Request& request)
{
    m_preferences.set(preferences::cartID, cart.id);
    adopt(cart, request);
}

void CartStore::drop(const Request& request)
{
    if (request.isOvertaken())
        return;
    m_adopted = request.number();
    forgetCart();
}

void CartStore::forgetCart()
{
    m_preferences.remove(preferences::cartID);
    m_cart.reset();
    m_loadFailed = false;
    m_clamped.clear();
    std::exchange(m_changes, {}).clear(); // what ends with its change may come back here
    Q_EMIT changed();
}

QCoro::Task<> CartStore::load()
{
    const QString id = storedID();
    if (id.isEmpty()) {
        m_refreshing.stop();
        forgetCart();
        co_return;
    }
    const Work::Run run = m_refreshing.begin();
    const Request request(*this, id);
    auto answer = co_await m_api.cart(id, run.stop());
    if (run.isStopped())
        co_return;
    if (!answer) {
        m_loadFailed = !m_cart;
        co_return; // the end of the run tells of the change
    }
    m_loadFailed = false;
    m_failure.reset();
    if (*answer)
        adopt(**std::move(answer), request);
    else
        drop(request);
}

QCoro::Task<ApiResult<QString>> CartStore::ensureCart()
{
    const QString id = storedID();
    if (!id.isEmpty() && m_cart && m_cart->id == id)
        co_return id;
    auto promise = m_ensuring;
    if (!promise) {
        promise = beginEnsuring();
        static_cast<void>(ensure(promise));
    }
    co_return co_await promise->future();
}

/// Whoever asks for a cart from now on gets the same one.
std::shared_ptr<CartStore::EnsurePromise> CartStore::beginEnsuring()
{
    m_ensuring = std::make_shared<EnsurePromise>();
    m_ensuring->start();
    return m_ensuring;
}

void CartStore::endEnsuring(const std::shared_ptr<EnsurePromise>& promise, ApiResult<QString> result)
{
    if (m_ensuring == promise)
        m_ensuring.reset();
    finish(*promise, std::move(result));
}

/// Also for those who wait for a store that is gone.
void CartStore::finish(EnsurePromise& promise, ApiResult<QString> result)
{
    promise.addResult(std::move(result));
    promise.finish();
}

QCoro::Task<> CartStore::ensure(std::shared_ptr<EnsurePromise> promise)
{
    const std::stop_token stopped = stop();
    auto result = co_await findOrCreateCart();
    if (stopped.stop_requested())
        finish(*promise, std::move(result));
    else
        endEnsuring(promise, std::move(result));
}

QCoro::Task<ApiResult<QString>> CartStore::findOrCreateCart()
{
    const std::stop_token stopped = stop();
    const QString id = storedID();
    if (!id.isEmpty()) {
        const Request reading(*this, id);
        LOOM_CO_TRY(found, co_await m_api.cart(id, stopped));
        if (stopped.stop_requested())
            co_return Unexpected(Failure(Cancelled{}));
        if (found) {
            adopt(*std::move(found), reading);
            co_return id;
        }
        drop(reading);
    }
    const Request request(*this);
    LOOM_CO_TRY(created, co_await m_api.create({}, stopped));
    if (stopped.stop_requested())
        co_return Unexpected(Failure(Cancelled{}));
    adoptAsOwn(created, request);
    co_return created.id;
}

QCoro::Task<ApiResult<Cart>> CartStore::createCart(std::vector<CartLineInput> lines)
{
    const std::stop_token stopped = stop();
    LOOM_CO_TRY(created, co_await m_api.create(lines, stopped));
    if (stopped.stop_requested())
        co_return Unexpected(Failure(Cancelled{}));
    m_made = created;
    co_return created;
}

const Cart* CartStore::cartAt(const QUrl& checkoutURL) const
{
    for (const std::optional<Cart>* const cart : {&m_cart, &m_made}) {
        if (*cart && (*cart)->checkoutURL == checkoutURL)
            return &**cart;
    }
    return nullptr;
}

QCoro::Task<> CartStore::attribute(QString id)
{
    const std::stop_token stopped = stop();
    const Request request(*this, id);
    auto answer = co_await m_api.addAttribution(id, stopped);
    if (!stopped.stop_requested() && answer)
        adopt(*std::move(answer), request);
}

QCoro::Task<ApiResult<CodeOutcome>> CartStore::applyCode(QString text)
{
    const QString code = text.trimmed();
    if (code.isEmpty() || !m_cart)
        co_return CodeOutcome::Ignored;
    const Work::Run run = m_applying.begin();
    LOOM_CO_TRY(id, co_await ensureCart());
    if (run.isStopped())
        co_return Unexpected(Failure(Cancelled{}));
    const Request request(*this, id);
    LOOM_CO_TRY(cart, co_await m_api.applyDiscount(id, {code}, run.stop()));
    if (run.isStopped())
        co_return Unexpected(Failure(Cancelled{}));
    const bool isApplied = std::ranges::any_of(cart.discountCodes, [&code](const CartDiscountCode& discount) {
        return discount.applicable && isCode(discount, code);
    });
    if (isApplied) {
        m_failure.reset();
        adopt(std::move(cart), request);
        co_return CodeOutcome::Applied;
    }
    // A dead code must not stay on the cart.
    const Request cleaning(*this, id);
    auto cleaned = co_await m_api.applyDiscount(id, {}, run.stop());
    if (run.isStopped())
        co_return Unexpected(Failure(Cancelled{}));
    if (!cleaned) {
        adopt(std::move(cart), request); // with the code: that is how the platform has it
        co_return Unexpected(cleaned.error());
    }
    m_failure.reset();
    adopt(*std::move(cleaned), cleaning);
    co_return CodeOutcome::NotApplicable;
}

QCoro::Task<> CartStore::clearCode()
{
    if (!m_cart)
        co_return;
    const Work::Run run = m_applying.begin();
    const auto id = co_await ensureCart();
    if (run.isStopped())
        co_return;
    if (!id) {
        setFailure(id.error());
        co_return;
    }
    const Request request(*this, *id);
    auto answer = co_await m_api.applyDiscount(*id, {}, run.stop());
    if (run.isStopped())
        co_return;
    if (!answer) {
        setFailure(answer.error());
        co_return;
    }
    m_failure.reset();
    adopt(*std::move(answer), request);
}

QCoro::Task<> CartStore::moveToMarket()
{
    const QString id = storedID();
    if (id.isEmpty())
        co_return;
    const Work::Run run = m_moving.begin();
    const Request request(*this, id);
    if (!m_cart) {
        auto found = co_await m_api.cart(id, run.stop());
        if (run.isStopped() || !found)
            co_return;
        if (*found)
            adopt(**std::move(found), request);
        else
            drop(request);
        co_return;
    }
    auto answer = co_await m_api.updateBuyerIdentity(id, run.stop());
    if (run.isStopped())
        co_return;
    if (!answer) {
        setFailure(answer.error());
        co_return;
    }
    m_failure.reset();
    adopt(*std::move(answer), request);
}

} // namespace loom
