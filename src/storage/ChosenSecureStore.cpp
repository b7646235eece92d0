#include "storage/ChosenSecureStore.h"

#include "base/Log.h"
#include "storage/Preferences.h"

namespace loom
{

namespace
{

const QString systemChoice = QStringLiteral("system");
const QString filesChoice = QStringLiteral("file");

} // namespace

ChosenSecureStore::ChosenSecureStore(Preferences& preferences, std::unique_ptr<SecureStore> system,
                                     std::unique_ptr<SecureStore> files)
    : m_preferences(preferences)
    , m_system(std::move(system))
    , m_files(std::move(files))
{
}

QCoro::Task<Result<void, QString>> ChosenSecureStore::store(QString key, QByteArray bytes)
{
    SecureStore* const chosen = co_await choose();
    co_return co_await chosen->store(key, bytes);
}

QCoro::Task<Result<std::optional<QByteArray>, QString>> ChosenSecureStore::read(QString key)
{
    SecureStore* const chosen = co_await choose();
    co_return co_await chosen->read(key);
}

QCoro::Task<Result<void, QString>> ChosenSecureStore::remove(QString key)
{
    SecureStore* const chosen = co_await choose();
    co_return co_await chosen->remove(key);
}

QCoro::Task<SecureStore*> ChosenSecureStore::choose()
{
    if (m_preferences.value(preferences::secureStore).isEmpty()) {
        // One probe for all: two at a time would remove the probe from under each other.
        if (!m_probe)
            m_probe.emplace(systemStoreWorks());
        const bool works = co_await *m_probe;
        if (m_preferences.value(preferences::secureStore).isEmpty()) {
            m_preferences.set(preferences::secureStore, works ? systemChoice : filesChoice);
            qCInfo(logStorage) << "secrets are kept in" << (works ? "the system's credential store" : "files");
        }
    }
    co_return m_preferences.value(preferences::secureStore) == systemChoice ? m_system.get() : m_files.get();
}

QCoro::Task<bool> ChosenSecureStore::systemStoreWorks()
{
    // A locked wallet answers reads with "not found" and refuses writes: only a written value proves that it works.
    const QString key = QStringLiteral("lst_probe");
    const QByteArray probe("loomstreet");
    if (!co_await m_system->store(key, probe))
        co_return false;
    const Result<std::optional<QByteArray>, QString> found = co_await m_system->read(key);
    static_cast<void>(co_await m_system->remove(key)); // a probe left behind does no harm
    co_return found && found->has_value() && found->value() == probe;
}

} // namespace loom
