#pragma once

#include "net/APIError.h"
#include "net/Work.h"

#include <QObject>
#include <qcoro/qcorotask.h>

#include <optional>

namespace loom
{

class AuthStore;

/// The deletion of the account, which the shopper confirms by typing its address. Belongs to the page that offers it;
/// a deletion that runs goes on without it. Main thread.
class AccountRemoval final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QString typed READ typed WRITE setTyped NOTIFY changed)
    Q_PROPERTY(bool isConfirmed READ isConfirmed NOTIFY changed)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(QString errorText READ errorText NOTIFY changed)
    Q_PROPERTY(QString outcome READ outcome NOTIFY changed)

public:
    explicit AccountRemoval(AuthStore& auth, QObject* parent = nullptr);

    [[nodiscard]] const QString& typed() const { return m_typed; }
    void setTyped(const QString& typed);
    /// What was typed is the address of the account, blanks around and letter case aside.
    [[nodiscard]] bool isConfirmed() const;
    [[nodiscard]] bool isBusy() const { return m_deleting.isRunning(); }
    /// Why the account is still there.
    [[nodiscard]] QString errorText() const;
    /// What became of it, for who is not signed in any more; else empty.
    [[nodiscard]] QString outcome() const;

    /// Deletes the account, if that is confirmed.
    Q_INVOKABLE void remove();
    /// For a dialog that opens anew.
    Q_INVOKABLE void reset();

Q_SIGNALS:
    void changed();
    void failed();

private:
    [[nodiscard]] QCoro::Task<> run();

    AuthStore& m_auth;
    QString m_typed;
    bool m_isDeleted = false;
    std::optional<APIError> m_failure;
    Work m_deleting;
};

} // namespace loom
