#pragma once

#include "stylist/voice/GlobalKey.h"

namespace loom
{

/// A key that a desktop gives to whoever asks for it.
class FakeGlobalKey final : public GlobalKey
{
public:
    void setBound(bool isBound, const QString& purpose) override
    {
        purposes.append(purpose);
        if (std::exchange(m_isBound, isBound && isGiven) != m_isBound)
            Q_EMIT isBoundChanged();
    }
    [[nodiscard]] bool isBound() const override { return m_isBound; }
    [[nodiscard]] QString keyText() const override { return QStringLiteral("Ctrl+Alt+M"); }

    bool isGiven = true;
    QStringList purposes; ///< of every time it was asked for or given back

private:
    bool m_isBound = false;
};

} // namespace loom
