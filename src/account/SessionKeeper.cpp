#include "account/SessionKeeper.h"

#include "base/Log.h"
#include "storage/SecureStore.h"

#include <QJsonDocument>

namespace loom
{

namespace
{

const QString key = QStringLiteral("lst_auth");
const QString probeKey = QStringLiteral("lst_auth_probe");

} // namespace

QCoro::Task<Result<std::optional<QByteArray>, QString>> SessionKeeper::read(Emptiness emptiness)
{
    const std::shared_ptr<SessionKeeper> self = shared_from_this();
    Result<std::optional<QByteArray>, QString> found = co_await m_secrets->read(key);
    if (!found || *found || !m_secrets || emptiness == Emptiness::Believed)
        co_return found;
    if (const Result<void, QString> probe = co_await m_secrets->store(probeKey, QByteArray("loomstreet")); !probe)
        co_return Unexpected(probe.error());
    if (m_secrets)
        static_cast<void>(co_await m_secrets->remove(probeKey)); // a probe left behind does no harm
    co_return found;
}

void SessionKeeper::write(const std::optional<AuthSession>& session)
{
    m_wanted = session ? std::optional(QJsonDocument(toJson(*session)).toJson(QJsonDocument::Compact)) : std::nullopt;
    m_isDirty = true;
    if (!m_isWriting)
        static_cast<void>(writeAll(shared_from_this()));
}

QCoro::Task<> SessionKeeper::writeAll(std::shared_ptr<SessionKeeper> self)
{
    self->m_isWriting = true;
    while (self->m_secrets && std::exchange(self->m_isDirty, false)) {
        const std::optional<QByteArray> wanted = self->m_wanted;
        Result<void, QString> written;
        if (wanted)
            written = co_await self->m_secrets->store(key, *wanted);
        else
            written = co_await self->m_secrets->remove(key);
        if (!written)
            qCWarning(logStorage) << "the session could not be" << (wanted ? "kept:" : "removed:") << written.error();
    }
    self->m_isWriting = false;
}

} // namespace loom
