#pragma once

#include "net/SessionSource.h"

#include <QStringList>

namespace loom
{

/// Whoever a test says is signed in; nobody to begin with.
class FakeSession final : public SessionSource
{
public:
    void signIn(const QString& appToken, const QString& email, const QString& name)
    {
        m_appToken = appToken;
        m_email = email;
        m_name = name;
    }
    void signOut() { signIn({}, {}, {}); }

    [[nodiscard]] QString appToken() const override { return m_appToken; }
    [[nodiscard]] QString email() const override { return m_email; }
    [[nodiscard]] QString name() const override { return m_name; }
    void tokenRefused(const QString& appToken) override { m_refused.append(appToken); }

    /// The tokens that were reported as refused, in order.
    [[nodiscard]] const QStringList& refusedTokens() const { return m_refused; }

private:
    QString m_appToken;
    QString m_email;
    QString m_name;
    QStringList m_refused;
};

} // namespace loom
