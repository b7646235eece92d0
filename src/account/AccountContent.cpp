#include "account/AccountContent.h"

#include "account/AuthStore.h"
#include "base/Announcements.h"

namespace loom
{

AccountContent::AccountContent(AuthStore& auth, Announcements& announcements, QStringList files, QObject* parent)
    : QObject(parent)
    , m_auth(auth)
    , m_files(std::move(files))
    , m_loading([this] { Q_EMIT phaseChanged(); })
{
    connect(&auth, &AuthStore::sessionChanged, this, &AccountContent::follow);
    connect(&auth, &AuthStore::filesAboutToGo, this, [this](const QStringList& names) {
        const auto goes = [&names](const QString& file) {
            return names.contains(file);
        };
        if (std::ranges::any_of(m_files, goes))
            letGo();
    });
    connect(&announcements, &Announcements::posted, this, [this](Announcement announcement) {
        if (announcement == Announcement::CheckoutCompleted && m_phase != Phase::NeedsAccount && m_isShown)
            reload();
    });
}

QString AccountContent::errorText() const
{
    return m_failure ? errorDescription(*m_failure) : QString();
}

void AccountContent::show()
{
    if (!std::exchange(m_isShown, true) || m_failure)
        follow();
}

void AccountContent::follow()
{
    if (!m_isShown || m_auth.phase() == AuthStore::Phase::Unknown)
        return;
    const QString token = m_auth.appToken();
    if (token != m_token)
        letGo();
    m_token = token;
    if (token.isEmpty()) {
        setPhase(Phase::NeedsAccount);
        return;
    }
    if (m_phase != Phase::Ready)
        setPhase(restore() ? Phase::Ready : Phase::Waiting);
    reload();
}

void AccountContent::reload()
{
    if (!m_auth.isSignedIn())
        return;
    if (m_phase == Phase::Failed)
        setPhase(Phase::Waiting);
    static_cast<void>(load());
}

QCoro::Task<> AccountContent::load()
{
    const Work::Run run = m_loading.begin();
    const ApiResult<void> answer = co_await fetch(run.stop());
    if (run.isStopped())
        co_return;
    m_failure.reset();
    if (!answer && !answer.error().isCancelled())
        m_failure = answer.error().error();
    if (answer)
        setPhase(Phase::Ready);
    else if (m_phase != Phase::Ready)
        setPhase(Phase::Failed);
    else
        Q_EMIT phaseChanged();
}

void AccountContent::letGo()
{
    m_loading.stop();
    m_failure.reset();
    m_token.clear();
    clear();
    setPhase(m_auth.phase() == AuthStore::Phase::SignedOut ? Phase::NeedsAccount : Phase::Waiting);
}

void AccountContent::setPhase(Phase phase)
{
    m_phase = phase;
    Q_EMIT phaseChanged();
}

} // namespace loom
