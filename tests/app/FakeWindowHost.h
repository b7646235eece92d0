#pragma once

#include "app/WindowHost.h"
#include "app/WindowSession.h"

#include <QStringList>

namespace loom
{

/// Shows no windows but notes what it was asked to do. Whether a window can be seen is for the test to say.
class FakeWindowHost final : public WindowHost
{
public:
    void show(WindowSession& session) override
    {
        m_calls.append(QStringLiteral("show ") + nameOf(session));
        isVisible = true;
        if (whileShowing)
            whileShowing(session);
    }
    void raise(WindowSession& session) override { m_calls.append(QStringLiteral("raise ") + nameOf(session)); }
    void showSettings() override { m_calls.append(QStringLiteral("settings")); }
    void showCheckout(CheckoutModel&) override { m_calls.append(QStringLiteral("checkout")); }
    void showMira() override { m_calls.append(QStringLiteral("mira")); }
    void showCall() override { m_calls.append(QStringLiteral("call")); }
    [[nodiscard]] bool hasVisibleWindow() const override { return isVisible; }
    void applyWindowStyle() override { m_calls.append(QStringLiteral("style")); }

    /// What was asked since this was last called. Windows are numbered in the order in which they were shown.
    [[nodiscard]] QStringList takeCalls() { return std::exchange(m_calls, {}); }

    bool isVisible = false;
    std::function<void(WindowSession& session)> whileShowing;

private:
    [[nodiscard]] QString nameOf(const WindowSession& session)
    {
        if (!m_known.contains(session.id()))
            m_known.append(session.id());
        return QString::number(m_known.indexOf(session.id()) + 1);
    }

    QStringList m_calls;
    QList<QUuid> m_known;
};

} // namespace loom
