#include "account/AccountRemoval.h"

#include "account/AuthStore.h"

#include <QCoreApplication>

namespace loom
{

AccountRemoval::AccountRemoval(AuthStore& auth, QObject* parent)
    : QObject(parent)
    , m_auth(auth)
    , m_deleting([this] { Q_EMIT changed(); })
{
    connect(&auth, &AuthStore::sessionChanged, this, [this] {
        if (m_auth.isSignedIn()) {
            m_isDeleted = false;
            reset();
        }
        Q_EMIT changed();
    });
}

void AccountRemoval::setTyped(const QString& typed)
{
    if (typed == m_typed)
        return;
    m_typed = typed;
    m_failure.reset();
    Q_EMIT changed();
}

bool AccountRemoval::isConfirmed() const
{
    return m_auth.isSignedIn() && !m_auth.email().isEmpty() &&
           m_typed.trimmed().compare(m_auth.email().trimmed(), Qt::CaseInsensitive) == 0;
}

QString AccountRemoval::errorText() const
{
    return m_failure ? errorDescription(*m_failure) : QString();
}

QString AccountRemoval::outcome() const
{
    if (m_auth.phase() != AuthStore::Phase::SignedOut)
        return {};
    if (m_isDeleted)
        return QCoreApplication::translate("Loomstreet", "Your account was deleted.");
    // A session that came to its end meanwhile takes the shopper out just as a deletion does.
    return m_failure ? QCoreApplication::translate("Loomstreet", "You were signed out before your account could be "
                                                                 "deleted. Sign in again to delete it.")
                     : QString();
}

void AccountRemoval::remove()
{
    if (isConfirmed() && !isBusy())
        static_cast<void>(run());
}

void AccountRemoval::reset()
{
    if (isBusy())
        return;
    m_typed.clear();
    m_failure.reset();
    Q_EMIT changed();
}

QCoro::Task<> AccountRemoval::run()
{
    const Work::Run run = m_deleting.begin();
    m_failure.reset();
    Q_EMIT changed();
    const ApiResult<void> answer = co_await m_auth.deleteAccount();
    if (run.isStopped())
        co_return;
    m_isDeleted = answer.hasValue();
    if (!answer && !answer.error().isCancelled())
        m_failure = answer.error().error();
    Q_EMIT changed();
    if (m_failure)
        Q_EMIT failed();
}

} // namespace loom
