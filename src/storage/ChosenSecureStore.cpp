#include "storage/ChosenSecureStore.h"

#include "base/Log.h"
#include "storage/Preferences.h"

#include <QPointer>

namespace loom
{

namespace
{

const QString systemChoice = QStringLiteral("system");
const QString filesChoice = QStringLiteral("file");

} // namespace

struct ChosenSecureStore::State {
    QPointer<Preferences> preferences;
    std::unique_ptr<SecureStore> system;
    std::unique_ptr<SecureStore> files;
    std::optional<QCoro::Task<bool>> probe; ///< shared by the calls that come before the choice

    [[nodiscard]] QString remembered() const
    {
        return preferences ? preferences->value(preferences::secureStore) : QString();
    }
};

ChosenSecureStore::ChosenSecureStore(Preferences& preferences, std::unique_ptr<SecureStore> system,
                                     std::unique_ptr<SecureStore> files)
    : m_state(std::make_shared<State>(&preferences, std::move(system), std::move(files)))
{
}

QCoro::Task<Result<void, QString>> ChosenSecureStore::store(QString key, QByteArray bytes)
{
    const std::shared_ptr<State> state = m_state;
    SecureStore* const chosen = co_await choose(state);
    co_return co_await chosen->store(key, bytes);
}

QCoro::Task<Result<std::optional<QByteArray>, QString>> ChosenSecureStore::read(QString key)
{
    const std::shared_ptr<State> state = m_state;
    if (!state->probe && state->remembered().isEmpty())
        co_return co_await readUnchosen(state, key);
    SecureStore* const chosen = co_await choose(state);
    co_return co_await chosen->read(key);
}

QCoro::Task<Result<std::optional<QByteArray>, QString>> ChosenSecureStore::readUnchosen(std::shared_ptr<State> state,
                                                                                        QString key)
{
    if (state->system) {
        const Result<std::optional<QByteArray>, QString> found = co_await state->system->read(key);
        if (found && *found)
            co_return found;
    }
    co_return co_await state->files->read(key);
}

QCoro::Task<Result<void, QString>> ChosenSecureStore::remove(QString key)
{
    const std::shared_ptr<State> state = m_state;
    SecureStore* const chosen = co_await choose(state);
    co_return co_await chosen->remove(key);
}

QCoro::Task<SecureStore*> ChosenSecureStore::choose(std::shared_ptr<State> state)
{
    QString choice = state->remembered();
    if (choice.isEmpty()) {
        // One probe for all: two at a time would remove the probe from under each other.
        if (!state->probe)
            state->probe.emplace(systemStoreWorks(state->system.get()));
        const bool works = co_await *state->probe;
        choice = state->remembered();
        if (choice.isEmpty()) {
            choice = works ? systemChoice : filesChoice;
            qCInfo(logStorage) << "secrets are kept in" << (works ? "the system's credential store" : "files");
            if (state->preferences)
                state->preferences->set(preferences::secureStore, choice);
        }
    }
    co_return choice == systemChoice && state->system ? state->system.get() : state->files.get();
}

QCoro::Task<bool> ChosenSecureStore::systemStoreWorks(SecureStore* system)
{
    if (!system)
        co_return false;
    // A locked wallet answers reads with "not found" and refuses writes: only a written value proves that it works.
    const QString key = QStringLiteral("lst_probe");
    const QByteArray probe("loomstreet");
    if (!co_await system->store(key, probe))
        co_return false;
    const Result<std::optional<QByteArray>, QString> found = co_await system->read(key);
    static_cast<void>(co_await system->remove(key)); // a probe left behind does no harm
    co_return found && found->has_value() && found->value() == probe;
}

} // namespace loom
