#include "account/AuthStore.h"

#include "account/RemovalGroups.h"
#include "account/SessionKeeper.h"
#include "base/Announcements.h"
#include "base/Clock.h"
#include "base/JsonReader.h"
#include "base/Log.h"
#include "storage/DataFolder.h"
#include "storage/Preferences.h"

#include <QCryptographicHash>

namespace loom
{

using namespace std::chrono_literals;

namespace
{

/// How long the secure store may keep silent before the shopper is told.
constexpr std::chrono::milliseconds patience = 5s;

/// How often a running session is held against the clock on the wall, which may be set, or go on while the machine
/// sleeps.
constexpr std::chrono::milliseconds lookAtTheClock = 10min;

/// By this a session is known that has ended; the token cannot be found from it.
QString markOf(const AuthSession& session)
{
    return QString::fromLatin1(QCryptographicHash::hash(session.token.toUtf8(), QCryptographicHash::Sha256).toBase64());
}

Unexpected<Failure> cancelled()
{
    return Unexpected(Failure(Cancelled{}));
}

} // namespace

AuthStore::AuthStore(Services services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_widget(m_services.supportBase, m_services.supportKey, m_services.transport, *this, m_services.random)
    , m_api(m_widget)
    , m_checkout(m_widget)
    , m_keeper(std::make_shared<SessionKeeper>(m_services.secrets))
    , m_exchanging([this] { Q_EMIT webAuthChanged(); })
{
    connect(this, &AuthStore::sessionChanged, this, &AuthStore::nameChanged);
}

AuthStore::~AuthStore()
{
    m_keeper->end();
    m_becameKnown.request_stop();
    m_ending.request_stop();
}

void AuthStore::load()
{
    if (m_phase != Phase::Unknown)
        return;
    setStuck(false);
    static_cast<void>(watchForSilence()); // first: what is read at once ends it
    static_cast<void>(readSession());
}

QCoro::Task<> AuthStore::readSession()
{
    const Work::Run run = m_reading.begin();
    // Where nobody ever signed in nothing can be locked away, and nobody who only browses is asked for a password.
    const bool wasUsed = !m_services.preferences.value(preferences::lastAccountEmail).isEmpty();
    const Result<std::optional<QByteArray>, QString> kept =
        co_await m_keeper->read(wasUsed ? SessionKeeper::Emptiness::Proven : SessionKeeper::Emptiness::Believed);
    if (run.isStopped())
        co_return;
    m_silence.stop();
    if (!kept) {
        qCWarning(logStorage) << "the session cannot be read:" << kept.error();
        setStuck(true);
        co_return;
    }
    setStuck(false);
    if (!*kept) {
        settle(Phase::SignedOut);
        co_return;
    }
    const auto session = decodeJson(**kept, decodeAuthSession);
    const QDateTime now = m_services.clock.now();
    // One that was signed out of is there when the secure store refused to let go of it.
    if (!session || session->isOver(now) || session->isAhead(now) ||
        markOf(*session) == m_services.preferences.value(preferences::endedSession)) {
        m_keeper->write({});
        settle(Phase::SignedOut);
        co_return;
    }
    begin(*session);
    m_services.announcements.post(Announcement::AuthChanged);
}

QCoro::Task<> AuthStore::watchForSilence()
{
    const Work::Run run = m_silence.begin();
    co_await m_services.clock.sleep(patience, run.stop());
    if (!run.isStopped())
        setStuck(m_phase == Phase::Unknown);
}

bool AuthStore::isSaving() const
{
    return m_keeper->isBusy();
}

QCoro::Task<> AuthStore::known(std::chrono::milliseconds atMost, std::stop_token stop)
{
    if (m_phase != Phase::Unknown)
        co_return;
    std::stop_source end;
    // What ends the waiting also ends this coroutine, and with it all but the copy.
    const auto finish = [end] {
        std::stop_source(end).request_stop();
    };
    const std::stop_callback whenKnown(m_becameKnown.get_token(), finish);
    const std::stop_callback whenUnwanted(stop, finish);
    co_await m_services.clock.sleep(atMost, end.get_token());
}

QString AuthStore::appToken() const
{
    return m_session && !m_session->isOver(m_services.clock.now()) ? m_session->token : QString();
}

QString AuthStore::email() const
{
    return m_session ? m_session->customer.email : QString();
}

QString AuthStore::name() const
{
    return m_session ? m_session->customer.displayName : QString();
}

void AuthStore::tokenRefused(const QString& appToken)
{
    if (m_session && m_session->token == appToken)
        signOut();
}

Work::Run AuthStore::beginSigningIn()
{
    if (isWebAuthRunning())
        cancelWebAuth();
    return m_signingIn.begin();
}

QCoro::Task<ApiResult<void>> AuthStore::requestCode(QString email)
{
    const Work::Run run = beginSigningIn();
    const auto answer = co_await m_api.requestCode(email, run.stop());
    if (!answer)
        co_return Unexpected(answer.error());
    co_return {};
}

QCoro::Task<ApiResult<void>> AuthStore::signInWithCode(QString email, QString code)
{
    const Work::Run run = beginSigningIn();
    auto answer = co_await m_api.signInWithCode(email, code, run.stop());
    if (run.isStopped())
        co_return cancelled();
    co_return enter(std::move(answer), email);
}

QCoro::Task<ApiResult<void>> AuthStore::signIn(QString email, QString password)
{
    const Work::Run run = beginSigningIn();
    auto answer = co_await m_api.signIn(email, password, run.stop());
    if (run.isStopped())
        co_return cancelled();
    co_return enter(std::move(answer), email);
}

QCoro::Task<ApiResult<void>> AuthStore::createAccount(QString email, QString code, QString password, QString name)
{
    const Work::Run run = beginSigningIn();
    auto answer = co_await m_api.setPassword(email, code, password, name, run.stop());
    if (run.isStopped())
        co_return cancelled();
    co_return enter(std::move(answer), email);
}

ApiResult<void> AuthStore::enter(ApiResult<SignedIn> answer, const QString& email)
{
    if (!answer)
        return Unexpected(std::move(answer).error());
    adopt(*answer, email);
    return {};
}

void AuthStore::signIn(SocialProvider provider)
{
    m_signingIn.stop();
    m_exchanging.stop();
    ProofKey key = makeProofKey(m_services.random);
    const QUrl address = signInAddress(m_services.supportBase, m_services.supportKey, provider, key);
    m_webAuth = WebAuth{.provider = provider, .address = address, .key = std::move(key)};
    Q_EMIT webAuthChanged();
    m_services.openExternally(address);
}

bool AuthStore::takeCallback(const QString& link)
{
    if (!isCallback(link))
        return false;
    if (!m_webAuth) {
        qCInfo(logNet) << "a sign-in came back that nobody waits for";
        return true;
    }
    const ProofKey key = std::exchange(m_webAuth, {})->key;
    if (const Result<QString, QString> code = readCallback(link, key.state))
        static_cast<void>(exchange(*code, key.verifier));
    else
        finishWebAuth(providerFailure(code.error()));
    return true;
}

void AuthStore::cancelWebAuth()
{
    m_webAuth.reset();
    m_exchanging.stop();
    Q_EMIT webAuthChanged();
}

QCoro::Task<> AuthStore::exchange(QString code, QString verifier)
{
    const Work::Run run = m_exchanging.begin();
    const auto answer = co_await m_api.exchange(code, verifier, run.stop());
    if (run.isStopped())
        co_return;
    if (!answer) {
        finishWebAuth(SignInFailure{.reason = SignInFailure::Reason::ProviderFailed, .error = {}});
        co_return;
    }
    adopt(*answer, answer->email);
    Q_EMIT webAuthFinished({});
}

void AuthStore::finishWebAuth(const std::optional<SignInFailure>& failure)
{
    Q_EMIT webAuthChanged();
    Q_EMIT webAuthFinished(failure);
}

void AuthStore::adopt(const SignedIn& answer, const QString& email)
{
    m_webAuth.reset();
    const QString address = answer.email.isEmpty() ? email : answer.email;
    const QString lowered = address.toLower();
    const QString last = m_services.preferences.value(preferences::lastAccountEmail);
    m_switchedAccount = !last.isEmpty() && last != lowered;
    m_services.preferences.set(preferences::lastAccountEmail, lowered);

    AuthSession session{.token = answer.token,
                        .expiresAt = m_services.clock.now().addSecs(AuthSession::lifetime.count()),
                        .customer = {.numericId = answer.numericId, .email = address, .displayName = answer.name}};
    m_keeper->write(session);
    // Nobody looks at the new session before what belonged to another is gone.
    removeFiles(RemovalGroups::stylist());
    if (m_switchedAccount)
        removeFiles(RemovalGroups::account() + RemovalGroups::shopper());
    begin(std::move(session));
    m_services.announcements.post(Announcement::AuthChanged);
}

void AuthStore::begin(AuthSession session)
{
    m_session = std::move(session);
    static_cast<void>(watchExpiry());
    settle(Phase::SignedIn);
}

QCoro::Task<> AuthStore::watchExpiry()
{
    const Work::Run run = m_expiring.begin();
    // By both clocks: one that is set back prolongs nothing.
    const std::chrono::milliseconds left(m_services.clock.now().msecsTo(m_session->expiresAt));
    const std::chrono::milliseconds end = m_services.clock.elapsed() + left;
    const auto isGoing = [this, end] {
        const QDateTime now = m_services.clock.now();
        return m_services.clock.elapsed() < end && !m_session->isOver(now) && !m_session->isAhead(now);
    };
    while (isGoing()) {
        co_await m_services.clock.sleep(std::min(lookAtTheClock, end - m_services.clock.elapsed()), run.stop());
        if (run.isStopped())
            co_return;
    }
    leave();
}

void AuthStore::rename(const QString& name)
{
    if (!m_session || m_session->customer.displayName == name)
        return;
    m_session->customer.displayName = name;
    m_keeper->write(m_session);
    Q_EMIT nameChanged();
}

void AuthStore::signOut()
{
    if (!m_session)
        return;
    static_cast<void>(m_checkout.revoke(m_session->token, m_ending.get_token()));
    leave();
}

QCoro::Task<ApiResult<void>> AuthStore::deleteAccount()
{
    const Work::Run run = m_deleting.begin();
    const QString token = appToken();
    const auto answer = co_await m_api.deleteAccount(run.stop());
    if (run.isStopped())
        co_return cancelled();
    if (!answer)
        co_return Unexpected(answer.error());
    if (m_session && m_session->token == token)
        leave();
    co_return {};
}

void AuthStore::leave()
{
    m_expiring.stop();
    m_services.preferences.set(preferences::endedSession, markOf(*m_session));
    m_keeper->write({});
    m_session.reset();
    removeFiles(RemovalGroups::stylist() + RemovalGroups::account());
    settle(Phase::SignedOut);
    m_services.announcements.post(Announcement::AuthChanged);
}

void AuthStore::settle(Phase phase)
{
    m_phase = phase;
    Q_EMIT sessionChanged();
    m_becameKnown.request_stop();
}

void AuthStore::setStuck(bool isStuck)
{
    if (std::exchange(m_isStuck, isStuck) != isStuck)
        Q_EMIT stuckChanged();
}

void AuthStore::removeFiles(const QStringList& names)
{
    Q_EMIT filesAboutToGo(names);
    for (const QString& name : names)
        m_services.folder.remove(name);
}

} // namespace loom
