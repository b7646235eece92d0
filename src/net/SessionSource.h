#pragma once

#include <QString>

namespace loom
{

/// Who is signed in, as far as calls to the backend need to know. Each text is empty when nobody is. Main thread.
class SessionSource
{
public:
    SessionSource() = default;
    SessionSource(const SessionSource&) = delete;
    SessionSource& operator=(const SessionSource&) = delete;
    virtual ~SessionSource() = default;

    [[nodiscard]] virtual QString appToken() const = 0;
    [[nodiscard]] virtual QString email() const = 0;
    [[nodiscard]] virtual QString name() const = 0;

    /// The backend refused a call that carried `appToken` as expired or unknown.
    virtual void tokenRefused(const QString& appToken) = 0;
};

} // namespace loom
