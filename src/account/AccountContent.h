#pragma once

#include "net/ApiResult.h"
#include "net/Work.h"

#include <QObject>
#include <qcoro/qcorotask.h>

#include <stop_token>

namespace loom
{

class Announcements;
class AuthStore;

/// Something that the backend keeps for an account, with a copy in a file of this machine: what was saved shows at
/// once, the backend's word replaces it, and neither outlives the session. Nothing is asked for before somebody looks.
/// Main thread.
class AccountContent : public QObject
{
    Q_OBJECT
    Q_PROPERTY(loom::AccountContent::Phase phase READ phase NOTIFY phaseChanged)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY phaseChanged)
    Q_PROPERTY(QString errorText READ errorText NOTIFY phaseChanged)
    Q_PROPERTY(bool isOffline READ isOffline NOTIFY phaseChanged)

public:
    enum class Phase {
        Waiting,      ///< for the account to be known, or for the first answer
        NeedsAccount, ///< nobody is signed in
        Ready,        ///< there is something to show; also after a failure, of which errorText tells
        Failed,       ///< nothing to show, and why
    };
    Q_ENUM(Phase)

    /// `files`: what it saves, by name.
    AccountContent(AuthStore& auth, Announcements& announcements, QStringList files, QObject* parent);

    [[nodiscard]] Phase phase() const { return m_phase; }
    [[nodiscard]] bool isLoading() const { return m_loading.isRunning(); }
    /// Of the last load; empty when it went well.
    [[nodiscard]] QString errorText() const;
    [[nodiscard]] bool isOffline() const { return m_failure && m_failure->as<APIError::Offline>(); }

    /// Somebody looks: loads, unless it is loaded already or on its way.
    Q_INVOKABLE void show();
    /// Loads anew.
    Q_INVOKABLE void reload();

Q_SIGNALS:
    void phaseChanged();

protected:
    /// Asks the backend and takes over the answer. After a co_await: nothing is touched once `stop` is requested.
    [[nodiscard]] virtual QCoro::Task<ApiResult<void>> fetch(std::stop_token stop) = 0;
    /// Takes over what was saved. False when there is nothing.
    [[nodiscard]] virtual bool restore() = 0;
    /// Lets go of everything; the files go by themselves.
    virtual void clear() = 0;

    [[nodiscard]] AuthStore& auth() const { return m_auth; }
    [[nodiscard]] bool isShown() const { return m_isShown; }

private:
    void follow();
    void letGo();
    void setPhase(Phase phase);
    [[nodiscard]] QCoro::Task<> load();

    AuthStore& m_auth;
    QStringList m_files;
    Phase m_phase = Phase::Waiting;
    bool m_isShown = false; ///< somebody has looked
    QString m_token;        ///< of the session that what is here belongs to
    std::optional<APIError> m_failure;
    Work m_loading;
};

} // namespace loom
